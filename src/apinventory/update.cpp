#include "apinventory/update.h"

#include "apinventory/fragments.h"
#include "apinventory/numbers.h"
#include "apinventory/wlan_fragments.h"

namespace routerdb {

namespace {

constexpr bool doubled = true;

// clang-format off
constexpr DeviceFragment reported_device[] = {
    DEVICE(blank, Dev_Group, comma),
    DEVICE(blank, Dev_Name, comma),
    DEVICE(blank, Dev_IP_Assign, comma),
    DEVICE(blank, Dev_Ipaddress, comma),
    FRAGMENT(DevInfo, Dev_Ipaddress, "Dev_IPSUM", blank, address_number, comma),
    DEVICE(blank, Dev_Subnet, comma),
    DEVICE(blank, Dev_Gateway, comma),
    DEVICE(blank, Dev_Dns1, comma),
    DEVICE(blank, Dev_Dns2, comma),
    DEVICE(blank, Dev_MAC, comma),
    DEVICE(blank, Dev_OnlineTime, comma),
    DEVICE(blank, Dev_SwVer, comma),
    DEVICE(blank, Dev_SwName, comma),
    DEVICE(blank, Dev_Model_Name, comma),
    DEVICE(blank, Dev_CurrentDateTime, comma),
    DEVICE(blank, Dev_RebootTime_Enable, comma),
    DEVICE(blank, Dev_RebootTime, comma),
    DEVICE(blank, Dev_Manufacture, comma),
};

constexpr DeviceFragment group_id      = DEVICE(blank, Dev_Wlan_GroupId, comma);
constexpr DeviceFragment wlan_count    = DEVICE(blank, Dev_Wlan_Radio_Num, comma);
constexpr DeviceFragment trap_address  = DEVICE(blank, Dev_Sys_TrapIP, blank);

constexpr WlanFragment reported_wlan[] = {
    WLAN(blank, Enable, comma),
    WLAN(blank, Hide_Ssid, comma),
    FRAGMENT(DevWlanEntry, Ssid, "Ssid", blank, reported_ssid, comma),
    WLAN(blank, VlanId, comma),
    WLAN(blank, Bssid, comma),
    WLAN(blank, Security, comma),
    WLAN(blank, Authmode, comma),
    WLAN(blank, Securitycipher, comma),
    WLAN(nothing, Wep_Type, comma),
    WLAN(nothing, Wep_Value, comma),
    WLAN(nothing, Psk_Type, comma),
    WLAN(nothing, Psk_Value, comma),
};

constexpr RadioFragment reported_radio[] = {
    RADIO(blank, Channel, comma),
    RADIO(blank, Current_Channel, comma),
    RADIO(blank, Isolate, comma),
    RADIO(blank, Rate, comma),
    RADIO(blank, Mode, comma),
    RADIO(blank, Bw, comma),
    RADIO(blank, Ampdu, comma),
    RADIO(blank, Beacon_Inertval, comma),
    RADIO(blank, Rts, comma),
    RADIO(blank, Cts, comma),
    RADIO(blank, ShortGI, comma),
    RADIO(blank, Txpower, comma),
    RADIO(blank, MaxTxpower, comma),
    RADIO(blank, Sta_Num, comma_blank),
    RADIO(blank, RxOption, comma_blank),
    RADIO(blank, MaxStaNum, comma_blank),
    RADIO(blank, CoverageThreshold, comma_blank),
};

constexpr DeviceFragment configured_device[] = {
    DEVICE(blank, Dev_IP_Assign, comma),
    DEVICE(blank, Dev_Ipaddress, comma),
    FRAGMENT(DevInfo, Dev_Ipaddress, "Dev_IPSUM", blank, address_number, comma),
    DEVICE(blank, Dev_Subnet, comma),
    DEVICE(blank, Dev_Wlan_GroupId, comma),
};

constexpr RadioFragment configured_radio[] = {
    RADIO(blank, Channel, comma),
    FRAGMENT(DevInfo, Dev_Wlan_Txpower, "Txpower", blank, power, comma),
    RADIO(blank, Isolate, comma),
    RADIO(blank, Mode, comma),
    RADIO(blank, Bw, comma),
    RADIO(blank, Ampdu, comma),
    RADIO(blank, Beacon_Inertval, comma),
    RADIO(blank, Rts, comma),
    RADIO(blank, Cts, comma),
    RADIO(blank, ShortGI, comma),
    RADIO(blank, RxOption, comma_blank),
    RADIO(blank, MaxStaNum, comma_blank),
    RADIO(blank, CoverageThreshold, comma_blank),
};
// clang-format on

/// The networks in use, as many as the record has room for, and both radios.
void append_wireless(Text &sql, const FragmentList &wlan, const FragmentList &radio, const DevInfo &device) {
    const int in_use = wlans_in_use(device);
    Gb2312ToUtf8 converter;
    for (int number = 0; number < in_use && number < ROUTERDB_WLANS; ++number) {
        append_fragments(sql, wlan,
                         scope_of_wlan(device, "Dev_Wlan", static_cast<unsigned>(number), doubled, &converter));
    }
    append_fragments(sql, radio, scope_of_radio(device, "Dev_Wlan_", false, doubled));
    append_fragments(sql, radio, scope_of_radio(device, "Dev_Wlan_", true, doubled));
}

}  // namespace

void append_report(Text &sql, Report report, const DevInfo &device) {
    const Scope scope = scope_of(device, "", doubled);
    sql.append("update DevInfo set ");
    append_fragments(sql, reported_device, scope);
    if (report == Report::of_new) {
        sql.append(" Dev_Wlan_GroupId='0', ");
    } else if (report == Report::saved) {
        append_fragment(sql, group_id, scope);
    }
    append_fragment(sql, wlan_count, scope);
    append_wireless(sql, reported_wlan, reported_radio, device);
    if (report != Report::saved) {
        sql.append(" Dev_Status='1',  Dev_Upgrade_Status='0', ");
    }
    append_fragment(sql, trap_address, scope);
    sql.append("  where Dev_MAC='").append_escaped(field_text(device.Dev_MAC)).append("';");
}

void append_configuration(Text &sql, const DevInfo &device) {
    sql.append("update DevInfo set ");
    append_fragments(sql, configured_device, scope_of(device, "", doubled));
    append_wireless(sql, settings_of_wlan, configured_radio, device);
    sql.append(" Dev_Status='1'   where Dev_Sn=")
        .append_quoted(static_cast<unsigned long>(device.Dev_Sn))
        .append("  ;");
}

}  // namespace routerdb
