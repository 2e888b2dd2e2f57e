// Where the members of a DevInfo record stand in the tables: `DevInfo`, `WlanGroupInfo` and `WlanZeroCfgGroupInfo`.
#pragma once

#include <cstddef>
#include <cstdint>

#include "routerdb.h"

namespace routerdb {

/// In place of a position: the table has no such column.
inline constexpr std::uint8_t no_column = UINT8_MAX;

/// A member and its column in `DevInfo`.
struct DeviceField {
    std::uint16_t offset;
    std::uint8_t width;
    std::uint8_t column;
};

/// A member of one wireless network: offset in DevWlanEntry, columns behind the network's first one.
struct WlanField {
    std::uint16_t offset;
    std::uint8_t width;
    std::uint8_t device;
    std::uint8_t group;
};

/// A member of the first radio and its columns. The second radio lies at a fixed distance in the record and in either
/// table, see `Layout`.
struct RadioField {
    std::uint16_t offset;
    std::uint8_t device;
    std::uint8_t group;
};

inline constexpr std::uint8_t radio_width = 5;
inline constexpr std::size_t second_radio = offsetof(DevInfo, Dev_Wlan_Mode_sec) - offsetof(DevInfo, Dev_Wlan_Mode);

/// How a table repeats its columns.
struct Layout {
    std::uint8_t first_wlan;
    std::uint8_t wlan_columns;
    std::uint8_t second_radio;
};

inline constexpr Layout device_layout{16, 12, 20};
inline constexpr Layout group_layout{2, 11, 16};

#define DEVICE_COLUMN(member, column) \
    { offsetof(DevInfo, member), sizeof(DevInfo::member), column }
#define WLAN_COLUMN(member, device, group) \
    { offsetof(DevWlanEntry, member), sizeof(DevWlanEntry::member), device, group }
#define RADIO_COLUMN(member, device, group) \
    { offsetof(DevInfo, Dev_Wlan_##member), device, group }

// clang-format off
inline constexpr DeviceField device_fields[] = {
    DEVICE_COLUMN(Dev_Group, 1),
    DEVICE_COLUMN(Dev_Name, 2),
    DEVICE_COLUMN(Dev_Ipaddress, 3),
    DEVICE_COLUMN(Dev_Subnet, 4),
    DEVICE_COLUMN(Dev_Gateway, 5),
    DEVICE_COLUMN(Dev_Dns1, 6),
    DEVICE_COLUMN(Dev_Dns2, 7),
    DEVICE_COLUMN(Dev_MAC, 8),
    DEVICE_COLUMN(Dev_OnlineTime, 9),
    DEVICE_COLUMN(Dev_SwName, 10),
    DEVICE_COLUMN(Dev_SwVer, 11),
    DEVICE_COLUMN(Dev_Manufacture, 12),
    DEVICE_COLUMN(Dev_Model_Name, 13),
    DEVICE_COLUMN(Dev_Wlan_GroupId, 14),
    DEVICE_COLUMN(Dev_Wlan_Radio_Num, 15),
    DEVICE_COLUMN(Dev_Sys_TrapIP, 152),
    DEVICE_COLUMN(Dev_Status, 153),
    DEVICE_COLUMN(Dev_IP_Assign, 154),
    DEVICE_COLUMN(Dev_CurrentDateTime, 156),
    DEVICE_COLUMN(Dev_RebootTime_Enable, 157),
    DEVICE_COLUMN(Dev_RebootTime, 158),
    DEVICE_COLUMN(Dev_Upgrade_Status, 159),
};

/// What a row of either group table has beside networks and radios.
inline constexpr DeviceField group_fields[] = {
    DEVICE_COLUMN(Dev_Wlan_GroupId, 0),
    DEVICE_COLUMN(wlan_group_name, 1),
};

/// What a row of `WlanZeroCfgGroupInfo` has beyond that.
inline constexpr DeviceField zero_config_fields[] = {
    DEVICE_COLUMN(Dev_RebootTime_Enable, 122),
    DEVICE_COLUMN(Dev_RebootTime, 123),
    DEVICE_COLUMN(Dev_Wlan_Txpower, 124),
    DEVICE_COLUMN(Dev_Wlan_Txpower_sec, 125),
};

inline constexpr WlanField wlan_fields[] = {
    WLAN_COLUMN(Enable, 0, 0),
    WLAN_COLUMN(Hide_Ssid, 1, 1),
    WLAN_COLUMN(Ssid, 2, 2),
    WLAN_COLUMN(VlanId, 3, 3),
    WLAN_COLUMN(Bssid, 4, no_column),
    WLAN_COLUMN(Security, 5, 4),
    WLAN_COLUMN(Authmode, 6, 5),
    WLAN_COLUMN(Securitycipher, 7, 6),
    WLAN_COLUMN(Wep_Type, 8, 7),
    WLAN_COLUMN(Wep_Value, 9, 8),
    WLAN_COLUMN(Psk_Type, 10, 9),
    WLAN_COLUMN(Psk_Value, 11, 10),
};

inline constexpr RadioField radio_fields[] = {
    RADIO_COLUMN(Channel, 112, 90),
    RADIO_COLUMN(Current_Channel, 113, no_column),
    RADIO_COLUMN(Isolate, 114, 91),
    RADIO_COLUMN(Rate, 115, 92),
    RADIO_COLUMN(Mode, 119, 96),
    RADIO_COLUMN(Bw, 120, 97),
    RADIO_COLUMN(Ampdu, 121, 98),
    RADIO_COLUMN(Beacon_Inertval, 122, 99),
    RADIO_COLUMN(Rts, 123, 100),
    RADIO_COLUMN(Cts, 124, 101),
    RADIO_COLUMN(ShortGI, 125, 102),
    RADIO_COLUMN(Txpower, 126, no_column),
    RADIO_COLUMN(MaxTxpower, 127, no_column),
    RADIO_COLUMN(Sta_Num, 128, no_column),
    RADIO_COLUMN(RxOption, 129, 103),
    RADIO_COLUMN(CoverageThreshold, 130, 104),
    RADIO_COLUMN(MaxStaNum, 131, 105),
};
// clang-format on

#undef DEVICE_COLUMN
#undef WLAN_COLUMN
#undef RADIO_COLUMN

/// Called for a member that has no column, which no constant can be made of: that does not compile.
DeviceField no_such_field();

/// A member of DevInfo, of either radio too, by its offset, and its column in `DevInfo`.
constexpr DeviceField device_field(std::size_t offset) {
    for (const DeviceField &field : device_fields) {
        if (field.offset == offset) {
            return field;
        }
    }
    for (const RadioField &field : radio_fields) {
        if (field.offset == offset) {
            return {field.offset, radio_width, field.device};
        }
        if (field.offset + second_radio == offset) {
            return {static_cast<std::uint16_t>(offset), radio_width,
                    static_cast<std::uint8_t>(field.device + device_layout.second_radio)};
        }
    }
    return no_such_field();
}

/// The same for a member of DevWlanEntry of one of the networks, from 0. Its offset is that in the entry.
constexpr DeviceField wlan_field(unsigned wlan, std::size_t offset) {
    for (const WlanField &field : wlan_fields) {
        if (field.offset == offset) {
            const unsigned column = device_layout.first_wlan + device_layout.wlan_columns * wlan + field.device;
            return {field.offset, field.width, static_cast<std::uint8_t>(column)};
        }
    }
    return no_such_field();
}

/// The first network of each radio: their SSIDs are never converted, everywhere.
constexpr bool leads_its_radio(unsigned wlan) {
    return wlan == 0 || wlan == 4;
}

}  // namespace routerdb
