#include "apinventory/zero_config_json.h"

#include "apinventory/zero_config.h"
#include "core/json_list.h"
#include "core/profiles.h"
#include "core/reading.h"
#include "core/text.h"

namespace routerdb {

namespace {

using namespace profiles::parts;

constexpr ReadProfile groups{free_printing_random, prepare_on_output};

constexpr char query_text[] =
    "select WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan1_Ssid,WlanGroup_Wlan1_Security,WlanGroup_Wlan1_AuthMode,"
    "WlanGroup_Wlan1_SecurityCipher,WlanGroup_Wlan1_Wep_Value,WlanGroup_Wlan1_Psk_Value,WlanGroup_Wlan5_Ssid,"
    "WlanGroup_Wlan5_Security,WlanGroup_Wlan5_AuthMode,WlanGroup_Wlan5_SecurityCipher,WlanGroup_Wlan5_Wep_Value,"
    "WlanGroup_Wlan5_Psk_Value,WlanGroup_Wlan_Channel,WlanGroup_Wlan_Channel_sec,WlanGroup_Dev_RebootTime_Enable,"
    "WlanGroup_Dev_RebootTime,WlanGroup_Wlan_Txpower,WlanGroup_Wlan_Txpower_sec from WlanZeroCfgGroupInfo;";

/// A key and the column of the query that it shows. The order is that of the output.
struct Key {
    char name[31];
    std::uint8_t column;
};

// clang-format off
constexpr Key keys[] = {
    {"WlanGroup_Id", 0},
    {"WlanGroup_Name", 1},
    {"WlanGroup_Wlan1_Ssid", 2},
    {"WlanGroup_Wlan1_Security", 3},
    {"WlanGroup_Wlan1_AuthMode", 4},
    {"WlanGroup_Wlan1_SecurityCipher", 5},
    {"WlanGroup_Wlan1_Wep_Value", 6},
    {"WlanGroup_Wlan1_Psk_Value", 7},
    {"WlanGroup_Wlan_Channel", 14},
    {"WlanGroup_Wlan5_Ssid", 8},
    {"WlanGroup_Wlan5_Security", 9},
    {"WlanGroup_Wlan5_AuthMode", 10},
    {"WlanGroup_Wlan5_SecurityCipher", 11},
    {"WlanGroup_Wlan5_Wep_Value", 12},
    {"WlanGroup_Wlan5_Psk_Value", 13},
    {"WlanGroup_Wlan_Channel_sec", 15},
    // Deliberate: the last four are not named after their columns.
    {"Wlan_txpower", 18},
    {"Wlan_txpower_sec", 19},
    {"TimeRebootEnable", 16},
    {"RebootTime", 17},
};
// clang-format on

constexpr std::size_t longest_value = 99;

void print_rows(Reading &reading) {
    int count = 0;
    for (bool more = reading.first_row(); more; more = reading.next_row()) {
        json::Element element;
        for (const Key &key : keys) {
            element.print(key.name, field_text(reading.row().text(key.column), longest_value));
        }
        json::close_element();
        ++count;
    }
    json::Element closing;
    for (const Key &key : keys) {
        closing.print(key.name, "");
    }
    json::close_list(count);
    json::close_object();
}

}  // namespace

int print_zero_config_groups() {
    SharedConnection connection;
    const int first = first_group_number(connection);
    json::open_object("WlanGroupList");
    // Deliberate: a first group with the number 0 hides all of them.
    if (first < 1) {
        json::print_no_list();
        return 0;
    }
    json::open_list();
    Reading reading(groups, &connection);
    const Start start = reading.start(query_text);
    if (start == Start::not_opened) {
        return reading.printed();
    }
    if (start == Start::ready) {
        print_rows(reading);
    }
    return reading.close().connection;
}

}  // namespace routerdb
