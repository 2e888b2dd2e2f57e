// Starts, reads the name of one access point with SOCI, and ends.
#include "peers/soci.h"

#include "peers/name.h"

int main() {
    bench::peers::print_name<bench::peers::Soci>();
    return 0;
}
