// Access points with SOCI.
#include <cstdlib>

#include "harness/json_lists.h"
#include "harness/variants.h"
#include "soci/reading.h"

namespace bench::soci_users {

using Rows = soci::rowset<soci::row>;

void get_device() {
    soci::session sql(soci::sqlite3, main_database());
    const long long sn = known_device;
    const Rows rows = (sql.prepare << "select * from DevInfo where Dev_Sn = :sn", soci::use(sn));
    desk.device = {};
    for (const soci::row &row : rows) {
        read_device(row, desk.device);
    }
}

void get_device_converted() {
    get_device();
    convert_ssids(desk.device);
}

void list_devices() {
    soci::session sql(soci::sqlite3, main_database());
    const Rows rows = (sql.prepare << "select * from DevInfo order by Dev_IPSUM");
    desk.devices = {};
    for (const soci::row &row : rows) {
        auto *const device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        *device = {};
        read_device(row, *device);
        desk.devices.devices[desk.devices.count++] = device;
    }
}

void print_device_page() {
    soci::session sql(soci::sqlite3, main_database());
    DeviceTotals totals{};
    sql << "select count(*) from DevInfo where Dev_Ipaddress <> ''", soci::into(totals.devices);
    sql << "select count(*) from DevInfo where Dev_Status = '1'", soci::into(totals.online);
    sql << "select sum(Dev_Wlan_Sta_Num) + sum(Dev_Wlan_Sta_Num_sec) from DevInfo", soci::into(totals.stations);
    totals.matching = totals.devices;
    std::printf("{\"ApDevList\":{\"data\":[");
    const int offset = 0;
    const Rows rows =
        (sql.prepare << "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM limit :offset, :size",
         soci::use(offset, "offset"), soci::use(page_size, "size"));
    int count = 0;
    for (const soci::row &row : rows) {
        std::string value;
        print_device([&](int column) {
            const auto position = static_cast<std::size_t>(column);
            value = column == 0 ? std::to_string(row.get<int>(position)) : text(row, position);
            return value.c_str();
        });
        ++count;
    }
    print_devices_end(count, totals);
}

}  // namespace bench::soci_users
