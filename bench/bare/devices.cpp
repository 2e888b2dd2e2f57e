// Access points by hand.
#include <cstdlib>

#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/device_columns.h"
#include "harness/json_lists.h"
#include "harness/texts.h"
#include "harness/variants.h"

namespace bench::bare {

namespace {

void read_row(sqlite3_stmt *statement, DevInfo &device) {
    device.Dev_Sn = static_cast<std::uint32_t>(std::strtoul(text(statement, 0), nullptr, 10));
    for (const Place &place : device_columns) {
        const char *value = text(statement, place.column);
        copy_text(value, std::strlen(value), reinterpret_cast<char *>(&device) + place.offset, place.width);
    }
}

DeviceTotals read_totals() {
    const char *path = paths::main_database;
    DeviceTotals totals{};
    totals.devices = number(path, "select count(*) from DevInfo where Dev_Ipaddress <> '';");
    totals.online = number(path, "select count(*) from DevInfo  where Dev_Status='1';");
    totals.stations = number(path, "select sum(Dev_Wlan_Sta_Num) from DevInfo ;") +
                      number(path, "select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;");
    totals.matching = number(path, "select count(*) from DevInfo where Dev_Ipaddress <> '';");
    return totals;
}

}  // namespace

void get_device() {
    desk.device = {};
    sqlite3 *const db = open(paths::main_database);
    sqlite3_stmt *const statement = prepare(db, known_device_sql);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        read_row(statement, desk.device);
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

void get_device_converted() {
    get_device();
    convert_ssids(desk.device);
}

void list_devices() {
    {
        const Lock lock;
        count_rows("select  * from DevInfo;");
    }
    desk.devices = {};
    sqlite3 *const db = open(paths::main_database);
    sqlite3_stmt *const statement = prepare(db, "select * from DevInfo  order by Dev_IPSUM ;");
    while (sqlite3_step(statement) == SQLITE_ROW) {
        auto *const device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        *device = {};
        read_row(statement, *device);
        desk.devices.devices[desk.devices.count++] = device;
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

void print_device_page() {
    const DeviceTotals totals = read_totals();
    std::printf("{\"ApDevList\":{\"data\":[");
    draw_delay();
    sqlite3 *const db = open(paths::main_database);
    sqlite3_stmt *const statement =
        prepare(db, "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;");
    int count = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        print_device([statement](int column) { return text(statement, column); });
        ++count;
    }
    print_devices_end(count, totals);
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

}  // namespace bench::bare
