// Starts, reads the name of one access point with SQLiteCpp, and ends.
#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdio>

#include "harness/desk.h"
#include "sqlitecpp/reading.h"

int main() {
    const SQLite::Database db(bench::paths::main_database);
    SQLite::Statement query(db, bench::known_device_sql);
    DevInfo device{};
    while (query.executeStep()) {
        bench::sqlitecpp::read_device(query, device);
    }
    std::puts(device.Dev_Name);
    return 0;
}
