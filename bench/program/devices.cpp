// Access points with the sqlite3 program.
#include <cstdlib>

#include "harness/desk.h"
#include "harness/device_columns.h"
#include "harness/json_lists.h"
#include "harness/texts.h"
#include "harness/variants.h"
#include "program/rows.h"

namespace bench::program {

namespace {

void read_row(const Row &row, DevInfo &device) {
    device.Dev_Sn = static_cast<std::uint32_t>(std::stoul(row[0]));
    for (const Place &place : device_columns) {
        const std::string &value = row[place.column];
        copy_text(value.data(), value.size(), reinterpret_cast<char *>(&device) + place.offset, place.width);
    }
}

}  // namespace

void get_device() {
    desk.device = {};
    for (const Row &row : query(paths::main_database, known_device_sql)) {
        read_row(row, desk.device);
    }
}

void get_device_converted() {
    get_device();
    convert_ssids(desk.device);
}

void list_devices() {
    desk.devices = {};
    for (const Row &row : query(paths::main_database, "select * from DevInfo order by Dev_IPSUM")) {
        auto *const device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        *device = {};
        read_row(row, *device);
        desk.devices.devices[desk.devices.count++] = device;
    }
}

void print_device_page() {
    const std::vector<Row> answer =
        query(paths::main_database,
              "select count(*) filter (where Dev_Ipaddress <> ''), count(*) filter (where Dev_Status = '1'),"
              "sum(Dev_Wlan_Sta_Num) + sum(Dev_Wlan_Sta_Num_sec) from DevInfo;"
              "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM limit 0, 17;");
    const Row &numbers = answer.front();
    const DeviceTotals totals{std::stoi(numbers[0]), std::stoi(numbers[1]), std::stoi(numbers[2]),
                              std::stoi(numbers[0])};
    std::printf("{\"ApDevList\":{\"data\":[");
    for (std::size_t row = 1; row < answer.size(); ++row) {
        print_device([&](int column) { return answer[row][static_cast<std::size_t>(column)].c_str(); });
    }
    print_devices_end(static_cast<int>(answer.size()) - 1, totals);
}

}  // namespace bench::program
