#include "apinventory/update.h"

#include "apinventory/assignments.h"
#include "apinventory/numbers.h"

namespace routerdb {

namespace {

using members::spaced;
using members::with_number;

constexpr Assigned group_id("Dev_Wlan_GroupId");
constexpr Assigned wlan_count("Dev_Wlan_Radio_Num");
constexpr Assigned trap_address("Dev_Sys_TrapIP", members::last);

// What an access point reports of itself (rate, channel in use, most power, stations) is no configuration.
constexpr Assigned configured_device[] = {
    {"Dev_IP_Assign"},
    {"Dev_Ipaddress", with_number},
    {"Dev_Subnet"},
    {"Dev_Wlan_GroupId"},
};
constexpr Assigned channel("Channel");
constexpr Assigned power("Txpower");
constexpr Assigned configured_radio[] = {
    {"Isolate"},
    {"Mode"},
    {"Bw"},
    {"Ampdu"},
    {"Beacon_Inertval"},
    {"Rts"},
    {"Cts"},
    {"ShortGI"},
    {"RxOption", spaced},
    {"MaxStaNum", spaced},
    {"CoverageThreshold", spaced},
};

/// Networks in use, as many as the record has room for.
unsigned networks_of(const DevInfo &device) {
    const int in_use = wlans_in_use(device);
    if (in_use < 0) {
        return 0;
    }
    return in_use < ROUTERDB_WLANS ? static_cast<unsigned>(in_use) : ROUTERDB_WLANS;
}

void append_configured_radio(const Assignments &assignments, const Part &radio, std::string_view percent) {
    constexpr int least = 10;
    constexpr int most = 100;
    assignments.append(radio, channel);
    const int number = number_in(percent);
    if (number >= least && number <= most) {
        assignments.append(radio, power);
    }
    assignments.append_each(radio, configured_radio);
}

}  // namespace

void append_report(Text &sql, Report report, const DevInfo &device) {
    Gb2312ToUtf8 converter;
    const Assignments assignments(sql, device, Table::devices, Quotes::doubled, &converter);
    sql.append("update DevInfo set ");
    assignments.append_reported(device_part);
    if (report == Report::of_new) {
        sql.append(" Dev_Wlan_GroupId='0', ");
    } else if (report == Report::saved) {
        assignments.append(device_part, group_id);
    }
    assignments.append(device_part, wlan_count);
    const unsigned networks = networks_of(device);
    for (unsigned number = 0; number < networks; ++number) {
        assignments.append_reported(network_part(number));
    }
    assignments.append_reported(first_radio);
    assignments.append_reported(second_radio);
    if (report != Report::saved) {
        sql.append(" Dev_Status='1',  Dev_Upgrade_Status='0', ");
    }
    assignments.append(device_part, trap_address);
    sql.append("  where Dev_MAC=").append_quoted(field_text(device.Dev_MAC), Quotes::doubled).append(";");
}

void append_configuration(Text &sql, const DevInfo &device) {
    const Assignments assignments(sql, device, Table::devices, Quotes::doubled, nullptr);
    sql.append("update DevInfo set ");
    assignments.append_each(device_part, configured_device);
    const unsigned networks = networks_of(device);
    for (unsigned number = 0; number < networks; ++number) {
        assignments.append_settings(network_part(number));
    }
    append_configured_radio(assignments, first_radio, field_text(device.Dev_Wlan_Txpower));
    append_configured_radio(assignments, second_radio, field_text(device.Dev_Wlan_Txpower_sec));
    sql.append(" Dev_Status='1'   where Dev_Sn=")
        .append_quoted(static_cast<unsigned long>(device.Dev_Sn))
        .append("  ;");
}

}  // namespace routerdb
