// The text members of a DevInfo record, each said once: where it stands in the record and in the three tables, how a
// statement writes it, when it is compared, which groups give it, and what it is in a new group. All who read, write,
// compare, apply or print records walk this table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "routerdb.h"

namespace routerdb::members {

/// In place of a column: the table has none for it.
inline constexpr std::uint8_t no_column = UINT8_MAX;

/// Columns from here on are those of `WlanZeroCfgGroupInfo` alone; all others are in `WlanGroupInfo` too.
inline constexpr std::uint8_t wlan_group_columns = 122;

/// What it belongs to.
enum class Kind : std::uint8_t { device, network, radio };

/// Between which blanks and commas a statement assigns it. They are irregular, and those who trace statements compare
/// them whole.
enum Written : std::uint8_t {
    apart,        // not in the row of the others
    usual,        // " Dev_Name='...',"
    with_number,  // " Dev_Ipaddress='...', Dev_IPSUM='...',": what lists are ordered by follows
    as_ssid,      // " Dev_Wlan1_Ssid='...',", converted where an access point reports it
    tight,        // "Dev_Wlan1_Wep_Type='...',"
    spaced,       // " Dev_Wlan_Sta_Num='...', "
    last,         // " Dev_Sys_TrapIP='...' "
};

/// When a difference between an access point and its group counts.
enum Compared : std::uint8_t {
    never,
    always,
    under_wep,           // where the group's network uses WEP
    under_key,           // where the group's network uses a pre-shared key
    against_zero_config  // unless the group is a WLAN group
};

/// Which kind of group gives it to an access point.
enum Given : std::uint8_t { by_none, by_either, by_wlan_group, by_zero_config, by_zero_config_if_it_suits };

struct Member {
    char name[22];         // of its column in `DevInfo`, but for what networks and radios put around it
    std::uint16_t offset;  // in the record, in its network, or in the first radio's part of the record
    std::uint8_t width;
    Kind kind;
    std::uint8_t in_devices;             // column of `DevInfo`: its own, in its network, or of the first radio
    std::uint8_t in_groups = no_column;  // column of the group tables, likewise
    Written written = apart;
    Compared compared = never;
    Given given = by_none;
    char initially[5] = "";  // in a new zero-configuration group; what is empty here stays as it is
};

#define MEMBER_DEVICE(member, ...) \
    { #member, offsetof(DevInfo, member), sizeof(DevInfo::member), Kind::device, __VA_ARGS__ }
#define MEMBER_NETWORK(member, ...) \
    { #member, offsetof(DevWlanEntry, member), sizeof(DevWlanEntry::member), Kind::network, __VA_ARGS__ }
#define MEMBER_RADIO(member, ...) \
    { #member, offsetof(DevInfo, Dev_Wlan_##member), sizeof(DevInfo::Dev_Wlan_##member), Kind::radio, __VA_ARGS__ }

// In the order in which reports and settings are written: those that are written apart come last.
// clang-format off
inline constexpr Member table[] = {
    MEMBER_DEVICE(Dev_Group,               1, no_column, usual),
    MEMBER_DEVICE(Dev_Name,                2, no_column, usual),
    MEMBER_DEVICE(Dev_IP_Assign,         154, no_column, usual),
    MEMBER_DEVICE(Dev_Ipaddress,           3, no_column, with_number),
    MEMBER_DEVICE(Dev_Subnet,              4, no_column, usual),
    MEMBER_DEVICE(Dev_Gateway,             5, no_column, usual),
    MEMBER_DEVICE(Dev_Dns1,                6, no_column, usual),
    MEMBER_DEVICE(Dev_Dns2,                7, no_column, usual),
    MEMBER_DEVICE(Dev_MAC,                 8, no_column, usual),
    MEMBER_DEVICE(Dev_OnlineTime,          9, no_column, usual),
    MEMBER_DEVICE(Dev_SwVer,              11, no_column, usual),
    MEMBER_DEVICE(Dev_SwName,             10, no_column, usual),
    MEMBER_DEVICE(Dev_Model_Name,         13, no_column, usual),
    MEMBER_DEVICE(Dev_CurrentDateTime,   156, no_column, usual),
    MEMBER_DEVICE(Dev_RebootTime_Enable, 157,       122, usual, against_zero_config, by_zero_config, "0"),
    MEMBER_DEVICE(Dev_RebootTime,        158,       123, usual, against_zero_config, by_zero_config, "3"),
    MEMBER_DEVICE(Dev_Manufacture,        12, no_column, usual),
    MEMBER_DEVICE(Dev_Wlan_GroupId,       14,         0, apart, never, by_wlan_group, "0"),
    MEMBER_DEVICE(Dev_Wlan_Radio_Num,     15),
    MEMBER_DEVICE(Dev_Status,            153),
    MEMBER_DEVICE(Dev_Upgrade_Status,    159),
    MEMBER_DEVICE(Dev_Sys_TrapIP,        152),
    MEMBER_DEVICE(wlan_group_name, no_column, 1),
    // Deliberate: no group that was read has these, so that applying one empties them.
    MEMBER_DEVICE(radius_server_ip,   no_column, no_column, apart, never, by_either),
    MEMBER_DEVICE(radius_server_port, no_column, no_column, apart, never, by_either),
    MEMBER_DEVICE(radius_shared_key,  no_column, no_column, apart, never, by_either),

    // The BSSID is the access point's own: it is the one that no group gives.
    MEMBER_NETWORK(Enable,          0,         0, usual,   always,    by_either, "0"),
    MEMBER_NETWORK(Hide_Ssid,       1,         1, usual,   always,    by_either, "0"),
    MEMBER_NETWORK(Ssid,            2,         2, as_ssid, always,    by_either),
    MEMBER_NETWORK(VlanId,          3,         3, usual,   always,    by_either, "0"),
    MEMBER_NETWORK(Bssid,           4, no_column, usual),
    MEMBER_NETWORK(Security,        5,         4, usual,   always,    by_either, "0"),
    MEMBER_NETWORK(Authmode,        6,         5, usual,   always,    by_either, "0"),
    MEMBER_NETWORK(Securitycipher,  7,         6, usual,   always,    by_either, "0"),
    MEMBER_NETWORK(Wep_Type,        8,         7, tight,   under_wep, by_either, "0"),
    MEMBER_NETWORK(Wep_Value,       9,         8, tight,   under_wep, by_either),
    MEMBER_NETWORK(Psk_Type,       10,         9, tight,   under_key, by_either, "0"),
    MEMBER_NETWORK(Psk_Value,      11,        10, tight,   under_key, by_either),

    // Deliberate: an access point may differ from its group in what is never compared here.
    MEMBER_RADIO(Channel,           112,        90, usual,  never,  by_zero_config_if_it_suits, "0"),
    MEMBER_RADIO(Current_Channel,   113, no_column, usual),
    MEMBER_RADIO(Isolate,           114,        91, usual,  always, by_either, "0"),
    MEMBER_RADIO(Rate,              115,        92, usual,  never,  by_either),
    MEMBER_RADIO(Mode,              119,        96, usual,  never,  by_none,   "9"),
    MEMBER_RADIO(Bw,                120,        97, usual,  never,  by_none,   "0"),
    MEMBER_RADIO(Ampdu,             121,        98, usual,  always, by_either, "1"),
    MEMBER_RADIO(Beacon_Inertval,   122,        99, usual,  always, by_either, "100"),
    MEMBER_RADIO(Rts,               123,       100, usual,  always, by_either, "2346"),
    MEMBER_RADIO(Cts,               124,       101, usual,  always, by_either, "2346"),
    MEMBER_RADIO(ShortGI,           125,       102, usual,  always, by_either, "1"),
    MEMBER_RADIO(Txpower,           126,       124, usual,  against_zero_config, by_zero_config, "100"),
    MEMBER_RADIO(MaxTxpower,        127, no_column, usual),
    MEMBER_RADIO(Sta_Num,           128, no_column, spaced),
    MEMBER_RADIO(RxOption,          129,       103, spaced, never,  by_either, "5"),
    MEMBER_RADIO(MaxStaNum,         131,       105, spaced, never,  by_none,   "32"),
    MEMBER_RADIO(CoverageThreshold, 130,       104, spaced, always, by_either, "-90"),
};
// clang-format on

#undef MEMBER_DEVICE
#undef MEMBER_NETWORK
#undef MEMBER_RADIO

inline constexpr std::uint8_t rows = sizeof(table) / sizeof(*table);

/// Number of the first row that is not of an earlier kind.
constexpr std::uint8_t first_row(Kind kind) {
    std::uint8_t row = 0;
    while (row < rows && table[row].kind < kind) {
        ++row;
    }
    return row;
}

constexpr bool kinds_follow_each_other() {
    for (std::uint8_t row = 1; row < rows; ++row) {
        if (table[row].kind < table[row - 1].kind) {
            return false;
        }
    }
    return true;
}
static_assert(kinds_follow_each_other());

/// Called for a name that no member has, which no constant can be made of: that does not compile.
std::uint8_t no_such_member();

/// Number of the row of a name.
constexpr std::uint8_t row_of(std::string_view name) {
    for (std::uint8_t row = 0; row < rows; ++row) {
        if (name == table[row].name) {
            return row;
        }
    }
    return no_such_member();
}

}  // namespace routerdb::members
