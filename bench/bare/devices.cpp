// Access points by hand.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "bare/by_hand.h"
#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/reading.h"

namespace bench::bare {

namespace {

/// In place of a column of `DevInfo`.
constexpr int station_count = -2;
constexpr int no_group_name = -3;

/// Where the list finds its values in a row of `DevInfo`.
struct Columns {
    Columns() {
        std::map<std::string, int> named{{"Dev_Sn", 0}, {"'N/A'", no_group_name}};
        for (const places::Place &place : places::all()) {
            named[place.name] = place.device;
        }
        for (std::size_t key = 0; key < device_keys.size(); ++key) {
            const auto column = named.find(device_keys[key].column);
            keys[key] = column != named.end() ? column->second : station_count;
        }
    }

    std::array<int, device_keys.size()> keys{};
    int networks = places::named("Dev_Wlan_Radio_Num").device;
    int stations = places::named("Dev_Wlan_Sta_Num").device;
    int stations_sec = places::named("Dev_Wlan_Sta_Num_sec").device;
};

/// Of one radio, or of both for an access point with eight networks.
int count_stations(const Row &row, const Columns &columns) {
    return row.number(columns.stations) + (row.number(columns.networks) == 8 ? row.number(columns.stations_sec) : 0);
}

void print_device(const Row &row) {
    static const Columns columns;
    char stations[12];
    std::snprintf(stations, sizeof(stations), "%d", count_stations(row, columns));
    print_element(device_keys, [&](int key) -> const char * {
        const int column = columns.keys[static_cast<std::size_t>(key)];
        return column == station_count ? stations : column == no_group_name ? "N/A" : row.text(column);
    });
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
    for_each(Connection(paths::main_database), known_device_sql, [](const Row &row) { read_device(row, desk.device); });
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
    for_each(Connection(paths::main_database), "select * from DevInfo  order by Dev_IPSUM ;", [](const Row &row) {
        auto *const device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        *device = {};
        read_device(row, *device);
        desk.devices.devices[desk.devices.count++] = device;
    });
}

void print_device_page() {
    const DeviceTotals totals = read_totals();
    std::fputs(devices_head, stdout);
    draw_delay();
    int count = 0;
    for_each(Connection(paths::main_database),
             "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;", [&](const Row &row) {
                 print_device(row);
                 ++count;
             });
    print_devices_end(count, totals);
}

}  // namespace bench::bare
