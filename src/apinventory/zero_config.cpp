#include "apinventory/zero_config.h"

#include <cstdio>

#include "apinventory/assignments.h"
#include "apinventory/groups.h"
#include "apinventory/numbers.h"
#include "core/execute.h"
#include "core/profiles.h"
#include "core/query.h"

namespace routerdb {

namespace {

using members::spaced;

constexpr Assigned saved_name("wlan_group_name");

// Between the rate and the mode of the first radio, the RADIUS server is written.
constexpr Assigned saved_radio_head[] = {{"Channel"}, {"Isolate"}, {"Rate"}};
constexpr Assigned saved_radius[] = {{"radius_server_ip"}, {"radius_server_port"}, {"radius_shared_key"}};
constexpr Assigned saved_radio[] = {
    {"Mode"},    {"Bw"},  {"Ampdu"},           {"Beacon_Inertval"},  {"Rts"},
    {"Txpower"}, {"Cts"}, {"ShortGI", spaced}, {"RxOption", spaced}, {"MaxStaNum", spaced},
};
constexpr Assigned saved_threshold("CoverageThreshold", spaced);
constexpr Assigned saved_second_threshold("CoverageThreshold", members::last);
constexpr Assigned saved_reboot[] = {{"Dev_RebootTime_Enable", spaced}, {"Dev_RebootTime", spaced}};

/// The first network of a radio is on. All have names, counted from 0 on either radio.
void start_network(unsigned number, DevWlanEntry &network) {
    constexpr unsigned of_a_radio = ROUTERDB_WLANS / 2;
    if (leads_its_radio(network_part(number))) {
        copy_cut("1", network.Enable, sizeof(network.Enable));
    }
    const bool second = number >= of_a_radio;
    std::snprintf(network.Ssid, sizeof(network.Ssid), second ? "WLAN_2_%u" : "WLAN%u", number % of_a_radio);
}

int next_group(SharedConnection &connection, int first) {
    constexpr SqlView highest("select MAX(WlanGroup_Id) from WlanZeroCfgGroupInfo ;");
    return first == 0 ? 1 : wrapping_sum(first_number(profiles::sql_int, highest, &connection), 1);
}

void run(const Text &sql) {
    [[maybe_unused]] const int result = execute(profiles::exec_char, sql);  // nobody is told
}

void insert_group(const DevInfo &group, int id) {
    StackText<256> sql;
    sql.append("insert into WlanZeroCfgGroupInfo (WlanGroup_Id,WlanGroup_Name) values(").append_quoted(long{id});
    sql.append(",").append_quoted(field_text(group.wlan_group_name)).append(") ;");
    run(sql);
}

void append_update(Text &sql, const DevInfo &group, int id) {
    const Assignments assignments(sql, group, Table::zero_config_groups, Quotes::as_given, nullptr);
    sql.append("update WlanZeroCfgGroupInfo set ");
    assignments.append(device_part, saved_name);
    for (unsigned number = 0; number < ROUTERDB_WLANS; ++number) {
        assignments.append_settings(network_part(number));
    }
    assignments.append_each(first_radio, saved_radio_head);
    assignments.append_each(device_part, saved_radius);
    assignments.append_each(first_radio, saved_radio);
    assignments.append(first_radio, saved_threshold);
    assignments.append_each(second_radio, saved_radio_head);
    assignments.append_each(second_radio, saved_radio);
    assignments.append_each(device_part, saved_reboot);
    assignments.append(second_radio, saved_second_threshold);
    sql.append("  where WlanGroup_Id=").append_quoted(long{id}).append(" ");
}

}  // namespace

int first_group_number(SharedConnection &connection) {
    constexpr SqlView numbers("select * from WlanZeroCfgGroupInfo;", "select WlanGroup_Id from WlanZeroCfgGroupInfo;");
    return first_number(profiles::sql_int, numbers, &connection);
}

void fill_with_defaults(DevInfo &group) {
    SharedConnection connection;
    const int number = next_group(connection, first_group_number(connection));
    std::snprintf(group.wlan_group_name, sizeof(group.wlan_group_name), "ZeroCfgGROUP_NAME%d", number);
    for (const Part &part : parts) {
        for (const members::Member &member : members_of(part)) {
            if (*member.initially != '\0') {
                copy_cut(member.initially, field_of(group, part, member), member.width);
            }
        }
        if (part.kind == members::Kind::network) {
            start_network(part.number, group.wlan[part.number]);
        }
    }
}

int read_or_start_zero_config(DevInfo &group, const char *id_text) {
    const int id = to_number(id_text);
    if (id != 0) {
        return read_zero_config(group, id);
    }
    group = {};
    fill_with_defaults(group);
    return 0;
}

int save_zero_config(const DevInfo &group, int id) {
    SharedConnection connection;
    const int first = first_group_number(connection);  // asked also when it is not needed
    if (id == 0) {
        id = next_group(connection, first);
        insert_group(group, id);
    }
    StackText<16384> sql;
    append_update(sql, group, id);
    run(sql);
    return id;
}

}  // namespace routerdb
