// Access points with SQLiteCpp.
#include <cstdlib>

#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/variants.h"
#include "sqlitecpp/reading.h"

namespace bench::sqlitecpp {

void get_device() {
    const SQLite::Database db(paths::main_database);
    SQLite::Statement query(db, "select * from DevInfo where Dev_Sn = ?");
    query.bind(1, static_cast<int64_t>(known_device));
    desk.device = {};
    while (query.executeStep()) {
        read_device(query, desk.device);
    }
}

void get_device_converted() {
    get_device();
    convert_ssids(desk.device);
}

void list_devices() {
    const SQLite::Database db(paths::main_database);
    SQLite::Statement query(db, "select * from DevInfo order by Dev_IPSUM");
    desk.devices = {};
    while (query.executeStep()) {
        auto *const device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        *device = {};
        read_device(query, *device);
        desk.devices.devices[desk.devices.count++] = device;
    }
}

void print_device_page() {
    SQLite::Database db(paths::main_database);
    DeviceTotals totals{};
    totals.devices = db.execAndGet("select count(*) from DevInfo where Dev_Ipaddress <> ''").getInt();
    totals.online = db.execAndGet("select count(*) from DevInfo where Dev_Status = '1'").getInt();
    totals.stations = db.execAndGet("select sum(Dev_Wlan_Sta_Num) + sum(Dev_Wlan_Sta_Num_sec) from DevInfo").getInt();
    totals.matching = totals.devices;
    std::printf("{\"ApDevList\":{\"data\":[");
    SQLite::Statement query(db, "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM limit ?, ?");
    query.bind(1, 0);
    query.bind(2, page_size);
    int count = 0;
    while (query.executeStep()) {
        print_device([&query](int column) { return query.getColumn(column).getText(); });
        ++count;
    }
    print_devices_end(count, totals);
}

}  // namespace bench::sqlitecpp
