// Which columns of `DevInfo` an update writes, with their values.
#pragma once

#include <arpa/inet.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "harness/device_columns.h"
#include "harness/texts.h"
#include "routerdb.h"

namespace bench {

struct Column {
    const char *name;
    std::uint16_t offset;
};

#define COLUMN(member)                     \
    Column {                               \
#member, offsetof(DevInfo, member) \
    }
#define NETWORK(number, name)                                                  \
    Column {                                                                   \
        "Dev_Wlan" #number "_" #name, offsetof(DevInfo, wlan[(number)-1].name) \
    }
#define NETWORK_SETTINGS(number)                                                                         \
    NETWORK(number, Enable), NETWORK(number, Hide_Ssid), NETWORK(number, Ssid), NETWORK(number, VlanId), \
        NETWORK(number, Security), NETWORK(number, Authmode), NETWORK(number, Securitycipher),           \
        NETWORK(number, Wep_Type), NETWORK(number, Wep_Value), NETWORK(number, Psk_Type), NETWORK(number, Psk_Value)
#define RADIO_SETTINGS(suffix)                                                                                   \
    COLUMN(Dev_Wlan_Channel##suffix), COLUMN(Dev_Wlan_Txpower##suffix), COLUMN(Dev_Wlan_Isolate##suffix),        \
        COLUMN(Dev_Wlan_Mode##suffix), COLUMN(Dev_Wlan_Bw##suffix), COLUMN(Dev_Wlan_Ampdu##suffix),              \
        COLUMN(Dev_Wlan_Beacon_Inertval##suffix), COLUMN(Dev_Wlan_Rts##suffix), COLUMN(Dev_Wlan_Cts##suffix),    \
        COLUMN(Dev_Wlan_ShortGI##suffix), COLUMN(Dev_Wlan_RxOption##suffix), COLUMN(Dev_Wlan_MaxStaNum##suffix), \
        COLUMN(Dev_Wlan_CoverageThreshold##suffix)

/// What DB_UpdateInfo writes of an access point with two radios, the address as a number left out.
inline constexpr std::array configured_columns{
    COLUMN(Dev_IP_Assign), COLUMN(Dev_Ipaddress), COLUMN(Dev_Subnet),  COLUMN(Dev_Wlan_GroupId), NETWORK_SETTINGS(1),
    NETWORK_SETTINGS(2),   NETWORK_SETTINGS(3),   NETWORK_SETTINGS(4), NETWORK_SETTINGS(5),      NETWORK_SETTINGS(6),
    NETWORK_SETTINGS(7),   NETWORK_SETTINGS(8),   RADIO_SETTINGS(),    RADIO_SETTINGS(_sec),
};

#define NETWORK_REPORT(number)                                                                            \
    NETWORK(number, Enable), NETWORK(number, Hide_Ssid), NETWORK(number, VlanId), NETWORK(number, Bssid), \
        NETWORK(number, Security), NETWORK(number, Authmode), NETWORK(number, Securitycipher),            \
        NETWORK(number, Wep_Type), NETWORK(number, Wep_Value), NETWORK(number, Psk_Type), NETWORK(number, Psk_Value)
#define RADIO_REPORT(suffix)                                                                         \
    RADIO_SETTINGS(suffix), COLUMN(Dev_Wlan_Current_Channel##suffix), COLUMN(Dev_Wlan_Rate##suffix), \
        COLUMN(Dev_Wlan_MaxTxpower##suffix), COLUMN(Dev_Wlan_Sta_Num##suffix)

/// What DB_addinfo writes of one, the names of its networks and the address as a number left out.
inline constexpr std::array reported_columns{
    COLUMN(Dev_Group),
    COLUMN(Dev_Name),
    COLUMN(Dev_IP_Assign),
    COLUMN(Dev_Ipaddress),
    COLUMN(Dev_Subnet),
    COLUMN(Dev_Gateway),
    COLUMN(Dev_Dns1),
    COLUMN(Dev_Dns2),
    COLUMN(Dev_MAC),
    COLUMN(Dev_OnlineTime),
    COLUMN(Dev_SwVer),
    COLUMN(Dev_SwName),
    COLUMN(Dev_Model_Name),
    COLUMN(Dev_CurrentDateTime),
    COLUMN(Dev_RebootTime_Enable),
    COLUMN(Dev_RebootTime),
    COLUMN(Dev_Manufacture),
    COLUMN(Dev_Wlan_Radio_Num),
    COLUMN(Dev_Sys_TrapIP),
    NETWORK_REPORT(1),
    NETWORK_REPORT(2),
    NETWORK_REPORT(3),
    NETWORK_REPORT(4),
    NETWORK_REPORT(5),
    NETWORK_REPORT(6),
    NETWORK_REPORT(7),
    NETWORK_REPORT(8),
    RADIO_REPORT(),
    RADIO_REPORT(_sec),
};

#undef RADIO_REPORT
#undef NETWORK_REPORT
#undef RADIO_SETTINGS
#undef NETWORK_SETTINGS
#undef NETWORK
#undef COLUMN

/// Calls `write` with the column of the address as a number, and its value.
template <typename Write>
void write_address_number(const DevInfo &device, Write write) {
    char address[24];
    std::snprintf(address, sizeof(address), "%lu", static_cast<unsigned long>(inet_network(device.Dev_Ipaddress)));
    write("Dev_IPSUM", address);
}

/// Calls `write` with each column that DB_UpdateInfo writes, and its value.
template <typename Write>
void for_each_configured(const DevInfo &device, Write write) {
    for (const Column &column : configured_columns) {
        write(column.name, reinterpret_cast<const char *>(&device) + column.offset);
    }
    write_address_number(device, write);
}

/// Calls `write` with each column that DB_addinfo writes, and its value.
template <typename Write>
void for_each_reported(const DevInfo &device, Write write) {
    for (const Column &column : reported_columns) {
        write(column.name, reinterpret_cast<const char *>(&device) + column.offset);
    }
    write_address_number(device, write);
    constexpr std::array names{"Dev_Wlan1_Ssid", "Dev_Wlan2_Ssid", "Dev_Wlan3_Ssid", "Dev_Wlan4_Ssid",
                               "Dev_Wlan5_Ssid", "Dev_Wlan6_Ssid", "Dev_Wlan7_Ssid", "Dev_Wlan8_Ssid"};
    for (unsigned network = 0; network < names.size(); ++network) {
        char converted[ROUTERDB_CONVERSION_ROOM];
        const char *const ssid = device.wlan[network].Ssid;
        write(names[network], is_converted(network) ? in_utf8(ssid, converted) : ssid);
    }
}

}  // namespace bench
