// The operations as peers get their results: the straightforward way, on one fresh connection for each. `Database` is
// what a peer offers: rows of statements and execution with values.
#pragma once

#include <arpa/inet.h>

#include <cstdlib>

#include "harness/catalogue.h"
#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/leases.h"
#include "harness/outcomes.h"
#include "harness/reading.h"
#include "harness/settings.h"

namespace bench::peers {

template <typename Database>
void get_device() {
    desk.device = {};
    Database(paths::main_database).for_each({known_device_sql}, [](const auto &row) { read_device(row, desk.device); });
}

template <typename Database>
void get_device_converted() {
    get_device<Database>();
    convert_ssids(desk.device);
}

template <typename Database>
void list_devices() {
    desk.devices = {};
    Database(paths::main_database).for_each({"select * from DevInfo order by Dev_IPSUM"}, [](const auto &row) {
        auto *const device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        *device = {};
        read_device(row, *device);
        desk.devices.devices[desk.devices.count++] = device;
    });
}

/// Behind which a row has those of the time group.
inline constexpr int columns_of_url_filter = 16;

template <typename Database>
void list_url_filters() {
    desk.url_filters = {};
    Database(paths::main_database)
        .for_each({"select * from filter_url left join user_timegroup on filter_url.timecontrol = 2 and "
                   "user_timegroup.id = filter_url.timegroup_id order by filter_url.Id"},
                  [](const auto &row) {
                      UrlFilterItem &rule = desk.url_filters.items[desk.url_filters.count++];
                      read_url_filter(row, rule);
                      if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
                          read_time_group(row, columns_of_url_filter, rule);
                      }
                  });
}

template <typename Database>
void list_behavior_rules() {
    const Leases leases;
    const Catalogue catalogue = read_catalogue<Database>();
    std::memset(&desk.behavior_rules, 0, sizeof(desk.behavior_rules));
    Database(paths::main_database).for_each({"select * from behavior_rule order by id"}, [&](const auto &row) {
        BehaviorItem &rule = desk.behavior_rules.items[desk.behavior_rules.count++];
        read_behavior_rule(row, rule);
        copy_text(leases.host_name(rule.devmac), rule.hostname);
        write_names(catalogue, rule);
    });
}

template <typename Database>
void execute_update() {
    Database(paths::main_database).execute(update_sql, {});
}

template <typename Database>
void configure_device() {
    std::string columns;
    std::vector<std::string> values;
    for_each_configured(desk.device, [&](const char *column, const char *value) {
        columns.append(column).append(" = ?, ");
        values.emplace_back(value);
    });
    values.push_back(std::to_string(desk.device.Dev_Sn));
    Database(paths::main_database)
        .execute("update DevInfo set " + columns + "Dev_Status = '1' where Dev_Sn = ?", values);
}

/// Inserts what is reported unless the address is known or the table is full.
template <typename Database>
void register_device() {
    const DevInfo &device = desk.device;
    std::string columns = "Dev_Sn, Dev_Wlan_GroupId, Dev_Status, Dev_Upgrade_Status";
    std::string marks = "?, '0', '1', '0'";
    std::vector<std::string> values{std::to_string(inet_addr(device.Dev_Ipaddress))};
    for_each_reported(device, [&](const char *column, const char *value) {
        columns.append(", ").append(column);
        marks.append(", ?");
        values.emplace_back(value);
    });
    values.emplace_back(device.Dev_MAC);
    Database(paths::main_database)
        .execute("insert into DevInfo (" + columns + ") select " + marks +
                     " where not exists (select 1 from DevInfo where Dev_MAC = ?) and "
                     "(select count(*) from DevInfo) < " +
                     std::to_string(ROUTERDB_MAX_DEVICES),
                 values);
    [[maybe_unused]] const int told = system("/bin/send_event 5 4 add#218212544 >/dev/null 2>&1 &");
}

template <typename Database>
void print_device_page() {
    static const std::string page_sql =
        select(device_keys, " from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM limit 0, ") +
        std::to_string(page_size);
    DeviceTotals totals{};
    int rows = 0;
    std::fputs(devices_head, stdout);
    Database(paths::main_database)
        .for_each({"select count(*) filter (where Dev_Ipaddress <> ''), count(*) filter (where Dev_Status = '1'), "
                   "sum(Dev_Wlan_Sta_Num) + sum(Dev_Wlan_Sta_Num_sec) from DevInfo",
                   page_sql},
                  [&](const auto &row) {
                      if (rows++ == 0) {
                          totals = {row.number(0), row.number(1), row.number(2), row.number(0)};
                      } else {
                          print_element(device_keys, [&row](int key) { return row.text(key); });
                      }
                  });
    print_devices_end(rows - 1, totals);
}

template <typename Database>
void print_classes() {
    print_catalogue(read_catalogue<Database>());
}

template <typename Database>
void print_groups() {
    static const std::string sql = select(group_keys, " from WlanZeroCfgGroupInfo");
    int count = 0;
    std::fputs(groups_head, stdout);
    Database(paths::main_database).for_each({sql}, [&count](const auto &row) {
        print_element(group_keys, [&row](int key) { return row.text(key); });
        ++count;
    });
    print_closing(group_keys, count);
    std::fputs("}}", stdout);
}

}  // namespace bench::peers
