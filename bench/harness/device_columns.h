// Which column of `DevInfo` goes where in the record, one row each.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "routerdb.h"

namespace bench {

struct Place {
    std::uint16_t column;
    std::uint16_t offset;
    std::uint16_t width;
};

#define PLACE(column, member)                                       \
    Place {                                                         \
        column, offsetof(DevInfo, member), sizeof(DevInfo{}.member) \
    }
#define NETWORK(number, first)                                                                      \
    PLACE(first, wlan[number].Enable), PLACE((first) + 1, wlan[number].Hide_Ssid),                  \
        PLACE((first) + 2, wlan[number].Ssid), PLACE((first) + 3, wlan[number].VlanId),             \
        PLACE((first) + 4, wlan[number].Bssid), PLACE((first) + 5, wlan[number].Security),          \
        PLACE((first) + 6, wlan[number].Authmode), PLACE((first) + 7, wlan[number].Securitycipher), \
        PLACE((first) + 8, wlan[number].Wep_Type), PLACE((first) + 9, wlan[number].Wep_Value),      \
        PLACE((first) + 10, wlan[number].Psk_Type), PLACE((first) + 11, wlan[number].Psk_Value)
#define RADIO(suffix, first)                                                                                     \
    PLACE(first, Dev_Wlan_Channel##suffix), PLACE((first) + 1, Dev_Wlan_Current_Channel##suffix),                \
        PLACE((first) + 2, Dev_Wlan_Isolate##suffix), PLACE((first) + 3, Dev_Wlan_Rate##suffix),                 \
        PLACE((first) + 7, Dev_Wlan_Mode##suffix), PLACE((first) + 8, Dev_Wlan_Bw##suffix),                      \
        PLACE((first) + 9, Dev_Wlan_Ampdu##suffix), PLACE((first) + 10, Dev_Wlan_Beacon_Inertval##suffix),       \
        PLACE((first) + 11, Dev_Wlan_Rts##suffix), PLACE((first) + 12, Dev_Wlan_Cts##suffix),                    \
        PLACE((first) + 13, Dev_Wlan_ShortGI##suffix), PLACE((first) + 14, Dev_Wlan_Txpower##suffix),            \
        PLACE((first) + 15, Dev_Wlan_MaxTxpower##suffix), PLACE((first) + 16, Dev_Wlan_Sta_Num##suffix),         \
        PLACE((first) + 17, Dev_Wlan_RxOption##suffix), PLACE((first) + 18, Dev_Wlan_CoverageThreshold##suffix), \
        PLACE((first) + 19, Dev_Wlan_MaxStaNum##suffix)

/// All but the serial number, which is column 0 and a number.
inline constexpr std::array device_columns{
    PLACE(1, Dev_Group),
    PLACE(2, Dev_Name),
    PLACE(3, Dev_Ipaddress),
    PLACE(4, Dev_Subnet),
    PLACE(5, Dev_Gateway),
    PLACE(6, Dev_Dns1),
    PLACE(7, Dev_Dns2),
    PLACE(8, Dev_MAC),
    PLACE(9, Dev_OnlineTime),
    PLACE(10, Dev_SwName),
    PLACE(11, Dev_SwVer),
    PLACE(12, Dev_Manufacture),
    PLACE(13, Dev_Model_Name),
    PLACE(14, Dev_Wlan_GroupId),
    PLACE(15, Dev_Wlan_Radio_Num),
    NETWORK(0, 16),
    NETWORK(1, 28),
    NETWORK(2, 40),
    NETWORK(3, 52),
    NETWORK(4, 64),
    NETWORK(5, 76),
    NETWORK(6, 88),
    NETWORK(7, 100),
    RADIO(, 112),
    RADIO(_sec, 132),
    PLACE(152, Dev_Sys_TrapIP),
    PLACE(153, Dev_Status),
    PLACE(154, Dev_IP_Assign),
    PLACE(156, Dev_CurrentDateTime),
    PLACE(157, Dev_RebootTime_Enable),
    PLACE(158, Dev_RebootTime),
    PLACE(159, Dev_Upgrade_Status),
};

#undef RADIO
#undef NETWORK
#undef PLACE

/// The networks whose names are kept in GB2312 where a conversion is asked for.
constexpr bool is_converted(unsigned network) {
    return network != 0 && network != 4;
}

}  // namespace bench
