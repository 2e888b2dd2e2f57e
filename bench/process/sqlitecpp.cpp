// Starts, reads the name of one access point with SQLiteCpp, and ends.
#include "peers/sqlitecpp.h"

#include "peers/name.h"

int main() {
    bench::peers::print_name<bench::peers::SqliteCpp>();
    return 0;
}
