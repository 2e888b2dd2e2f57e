// Starts, reads the name of one access point with SOCI, and ends.
#include <cstdio>

#include "soci/reading.h"

int main() {
    soci::session sql(soci::sqlite3, bench::soci_users::main_database());
    const soci::rowset<soci::row> rows = (sql.prepare << bench::known_device_sql);
    DevInfo device{};
    for (const soci::row &row : rows) {
        bench::soci_users::read_device(row, device);
    }
    std::puts(device.Dev_Name);
    return 0;
}
