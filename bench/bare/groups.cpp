// Zero-configuration groups by hand.
#include <array>
#include <cstdio>

#include "bare/by_hand.h"
#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/json_lists.h"

namespace bench::bare {

namespace {

constexpr char sql[] =
    "select WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan1_Ssid,WlanGroup_Wlan1_Security,WlanGroup_Wlan1_AuthMode,"
    "WlanGroup_Wlan1_SecurityCipher,WlanGroup_Wlan1_Wep_Value,WlanGroup_Wlan1_Psk_Value,WlanGroup_Wlan5_Ssid,"
    "WlanGroup_Wlan5_Security,WlanGroup_Wlan5_AuthMode,WlanGroup_Wlan5_SecurityCipher,WlanGroup_Wlan5_Wep_Value,"
    "WlanGroup_Wlan5_Psk_Value,WlanGroup_Wlan_Channel,WlanGroup_Wlan_Channel_sec,WlanGroup_Dev_RebootTime_Enable,"
    "WlanGroup_Dev_RebootTime,WlanGroup_Wlan_Txpower,WlanGroup_Wlan_Txpower_sec from WlanZeroCfgGroupInfo;";

/// Its column for each key.
constexpr std::array<int, group_keys.size()> columns{0, 1,  2,  3,  4,  5,  6,  7,  14, 8,
                                                     9, 10, 11, 12, 13, 15, 18, 19, 16, 17};

bool has_groups() {
    const Lock lock;
    bool has_one = false;
    for_first(Connection(paths::main_database), "select * from WlanZeroCfgGroupInfo;",
              [&has_one](const Row &row) { has_one = row.number(0) >= 1; });
    return has_one;
}

}  // namespace

void print_groups() {
    if (!has_groups()) {
        return;
    }
    std::fputs(groups_head, stdout);
    draw_delay();
    int count = 0;
    for_each(Connection(paths::main_database), sql, [&count](const Row &row) {
        print_element(group_keys, [&row](int key) { return row.text(columns[static_cast<std::size_t>(key)]); });
        ++count;
    });
    print_closing(group_keys, count);
    std::fputs("}}", stdout);
}

}  // namespace bench::bare
