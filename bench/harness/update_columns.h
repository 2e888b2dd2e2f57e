// Which columns of `DevInfo` an update writes, with their values.
#pragma once

#include <arpa/inet.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "routerdb.h"

namespace bench {

struct Column {
    const char *name;
    std::uint16_t offset;
};

#define COLUMN(member) \
    Column { #member, offsetof(DevInfo, member) }
#define NETWORK(number, name) \
    Column { "Dev_Wlan" #number "_" #name, offsetof(DevInfo, wlan[(number)-1].name) }
#define NETWORK_SETTINGS(number)                                                                         \
    NETWORK(number, Enable), NETWORK(number, Hide_Ssid), NETWORK(number, Ssid), NETWORK(number, VlanId), \
        NETWORK(number, Security), NETWORK(number, Authmode), NETWORK(number, Securitycipher),           \
        NETWORK(number, Wep_Type), NETWORK(number, Wep_Value), NETWORK(number, Psk_Type), NETWORK(number, Psk_Value)
#define RADIO_SETTINGS(suffix)                                                                                    \
    COLUMN(Dev_Wlan_Channel##suffix), COLUMN(Dev_Wlan_Txpower##suffix), COLUMN(Dev_Wlan_Isolate##suffix),         \
        COLUMN(Dev_Wlan_Mode##suffix), COLUMN(Dev_Wlan_Bw##suffix), COLUMN(Dev_Wlan_Ampdu##suffix),               \
        COLUMN(Dev_Wlan_Beacon_Inertval##suffix), COLUMN(Dev_Wlan_Rts##suffix), COLUMN(Dev_Wlan_Cts##suffix),     \
        COLUMN(Dev_Wlan_ShortGI##suffix), COLUMN(Dev_Wlan_RxOption##suffix), COLUMN(Dev_Wlan_MaxStaNum##suffix),  \
        COLUMN(Dev_Wlan_CoverageThreshold##suffix)

/// What DB_UpdateInfo writes of an access point with two radios, the address as a number left out.
inline constexpr std::array configured_columns{
    COLUMN(Dev_IP_Assign),  COLUMN(Dev_Ipaddress),  COLUMN(Dev_Subnet),     COLUMN(Dev_Wlan_GroupId),
    NETWORK_SETTINGS(1),    NETWORK_SETTINGS(2),    NETWORK_SETTINGS(3),    NETWORK_SETTINGS(4),
    NETWORK_SETTINGS(5),    NETWORK_SETTINGS(6),    NETWORK_SETTINGS(7),    NETWORK_SETTINGS(8),
    RADIO_SETTINGS(),       RADIO_SETTINGS(_sec),
};

#undef RADIO_SETTINGS
#undef NETWORK_SETTINGS
#undef NETWORK
#undef COLUMN

/// Calls `write` with each column and its value.
template <typename Write>
void for_each_configured(const DevInfo &device, Write write) {
    for (const Column &column : configured_columns) {
        write(column.name, reinterpret_cast<const char *>(&device) + column.offset);
    }
    char address[16];
    std::snprintf(address, sizeof(address), "%lu", static_cast<unsigned long>(inet_network(device.Dev_Ipaddress)));
    write("Dev_IPSUM", address);
}

}  // namespace bench
