#include "apinventory/zero_config.h"

#include <cstdio>
#include <cstdlib>

#include "apinventory/device_fields.h"
#include "apinventory/fragments.h"
#include "apinventory/groups.h"
#include "apinventory/numbers.h"
#include "apinventory/wlan_fragments.h"
#include "apinventory/zero_config_defaults.h"
#include "core/execute.h"
#include "core/profiles.h"
#include "core/query.h"
#include "core/reading.h"

namespace routerdb {

namespace {

constexpr bool as_given = false;

// clang-format off
constexpr DeviceFragment saved_name  = DEVICE_AS(blank, wlan_group_name, "Name", comma);

// Between the rate and the mode of the first radio, the RADIUS server is written.
constexpr RadioFragment saved_radio_head[] = {
    RADIO(blank, Channel, comma),
    RADIO(blank, Isolate, comma),
    RADIO(blank, Rate, comma),
};
constexpr DeviceFragment saved_radius[] = {
    DEVICE_AS(blank, radius_server_ip, "Wlan_Radius_ServerIP", comma),
    DEVICE_AS(blank, radius_server_port, "Wlan_Radius_ServerPort", comma),
    DEVICE_AS(blank, radius_shared_key, "Wlan_Radius_Sharekey", comma),
};
constexpr RadioFragment saved_radio[] = {
    RADIO(blank, Mode, comma),
    RADIO(blank, Bw, comma),
    RADIO(blank, Ampdu, comma),
    RADIO_AS(blank, Beacon_Inertval, "Beacon_Interval", comma),
    RADIO(blank, Rts, comma),
    RADIO(blank, Txpower, comma),
    RADIO(blank, Cts, comma),
    RADIO(blank, ShortGI, comma_blank),
    RADIO_AS(blank, RxOption, "RevOption", comma_blank),
    RADIO(blank, MaxStaNum, comma_blank),
};
constexpr RadioFragment saved_threshold = RADIO(blank, CoverageThreshold, comma_blank);
constexpr RadioFragment saved_second_threshold = RADIO(blank, CoverageThreshold, blank);

constexpr DeviceFragment saved_reboot[] = {
    DEVICE(blank, Dev_RebootTime_Enable, comma_blank),
    DEVICE(blank, Dev_RebootTime, comma_blank),
};
// clang-format on

template <std::size_t count>
void fill(const Default (&defaults)[count], void *base) {
    for (const Default &value : defaults) {
        copy_cut(value.text, static_cast<char *>(base) + value.member.offset, value.member.width);
    }
}

void fill_wlan(unsigned number, DevWlanEntry &wlan) {
    constexpr unsigned wlans_of_a_radio = ROUTERDB_WLANS / 2;
    fill(default_wlan, &wlan);
    copy_cut(leads_its_radio(number) ? "1" : "0", wlan.Enable, sizeof(wlan.Enable));
    const bool second = number >= wlans_of_a_radio;
    std::snprintf(wlan.Ssid, sizeof(wlan.Ssid), second ? "WLAN_2_%u" : "WLAN%u", number % wlans_of_a_radio);
}

/// The first column of the first row, read under the lock file.
int first_number(SharedConnection &connection, const char *sql) {
    return query(profiles::sql_int_first_number, sql, {nullptr}, &connection);
}

int next_group(SharedConnection &connection, int first) {
    constexpr char highest[] = "select MAX(WlanGroup_Id) from WlanZeroCfgGroupInfo ;";
    return first == 0 ? 1 : wrapping_sum(first_number(connection, highest), 1);
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
    const Scope whole = scope_of(group, "WlanGroup_", as_given);
    const Scope first = scope_of_radio(group, "WlanGroup_Wlan_", false, as_given);
    const Scope second = scope_of_radio(group, "WlanGroup_Wlan_", true, as_given);
    sql.append("update WlanZeroCfgGroupInfo set ");
    append_fragment(sql, saved_name, whole);
    for (unsigned number = 0; number < ROUTERDB_WLANS; ++number) {
        append_fragments(sql, settings_of_wlan, scope_of_wlan(group, "WlanGroup_Wlan", number, as_given, nullptr));
    }
    append_fragments(sql, saved_radio_head, first);
    append_fragments(sql, saved_radius, whole);
    append_fragments(sql, saved_radio, first);
    append_fragment(sql, saved_threshold, first);
    append_fragments(sql, saved_radio_head, second);
    append_fragments(sql, saved_radio, second);
    append_fragments(sql, saved_reboot, whole);
    append_fragment(sql, saved_second_threshold, second);
    sql.append("  where WlanGroup_Id=").append_quoted(long{id}).append(" ");
}

}  // namespace

int first_group_number(SharedConnection &connection) {
    Reading reading(profiles::sql_int_first_number.reading, &connection);
    if (reading.start("select * from WlanZeroCfgGroupInfo;", "select WlanGroup_Id from WlanZeroCfgGroupInfo;") !=
        Start::ready) {
        return -1;
    }
    return reading.first_row() ? reading.row().number(0) : 0;
}

void fill_with_defaults(DevInfo &group) {
    SharedConnection connection;
    const int number = next_group(connection, first_group_number(connection));
    std::snprintf(group.wlan_group_name, sizeof(group.wlan_group_name), "ZeroCfgGROUP_NAME%d", number);
    fill(default_device, &group);
    for (unsigned wlan = 0; wlan < ROUTERDB_WLANS; ++wlan) {
        fill_wlan(wlan, group.wlan[wlan]);
    }
    fill(default_radio, &group);
    fill(default_radio, reinterpret_cast<char *>(&group) + second_radio);
}

int read_or_start_zero_config(DevInfo &group, const char *id_text) {
    const int id = std::atoi(id_text);  // NOLINT(cert-err34-c): a text that is no number counts as 0
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
