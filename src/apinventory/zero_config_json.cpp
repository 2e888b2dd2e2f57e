#include "apinventory/zero_config_json.h"

#include "apinventory/zero_config.h"
#include "core/reading.h"
#include "json/json_list.h"
#include "text/text.h"

namespace routerdb {

namespace {

using namespace profiles;

constexpr ReadProfile groups = unguarded.when_not_opened(code_on_error).when_not_prepared(prepare_on_output);

constexpr char query_text[] =
    "select WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan1_Ssid,WlanGroup_Wlan1_Security,WlanGroup_Wlan1_AuthMode,"
    "WlanGroup_Wlan1_SecurityCipher,WlanGroup_Wlan1_Wep_Value,WlanGroup_Wlan1_Psk_Value,WlanGroup_Wlan5_Ssid,"
    "WlanGroup_Wlan5_Security,WlanGroup_Wlan5_AuthMode,WlanGroup_Wlan5_SecurityCipher,WlanGroup_Wlan5_Wep_Value,"
    "WlanGroup_Wlan5_Psk_Value,WlanGroup_Wlan_Channel,WlanGroup_Wlan_Channel_sec,WlanGroup_Dev_RebootTime_Enable,"
    "WlanGroup_Dev_RebootTime,WlanGroup_Wlan_Txpower,WlanGroup_Wlan_Txpower_sec from WlanZeroCfgGroupInfo;";

constexpr json::Value shown_column(std::uint8_t column) {
    constexpr std::uint8_t longest = 99;
    return json::column_text(column, longest);
}

// The columns are those of the query; the order is that of the output.
// clang-format off
constexpr json::Key keys[] = {
    {"WlanGroup_Id", shown_column(0)},
    {"WlanGroup_Name", shown_column(1)},
    {"WlanGroup_Wlan1_Ssid", shown_column(2)},
    {"WlanGroup_Wlan1_Security", shown_column(3)},
    {"WlanGroup_Wlan1_AuthMode", shown_column(4), json::begins_closing_piece},
    {"WlanGroup_Wlan1_SecurityCipher", shown_column(5), json::begins_piece},
    {"WlanGroup_Wlan1_Wep_Value", shown_column(6)},
    {"WlanGroup_Wlan1_Psk_Value", shown_column(7)},
    {"WlanGroup_Wlan_Channel", shown_column(14), json::begins_closing_piece},
    {"WlanGroup_Wlan5_Ssid", shown_column(8), json::begins_piece},
    {"WlanGroup_Wlan5_Security", shown_column(9)},
    {"WlanGroup_Wlan5_AuthMode", shown_column(10)},
    {"WlanGroup_Wlan5_SecurityCipher", shown_column(11), json::begins_piece | json::begins_closing_piece},
    {"WlanGroup_Wlan5_Wep_Value", shown_column(12)},
    {"WlanGroup_Wlan5_Psk_Value", shown_column(13)},
    {"WlanGroup_Wlan_Channel_sec", shown_column(15)},
    // Deliberate: the last four are not named after their columns.
    {"Wlan_txpower", shown_column(18), json::begins_piece},
    {"Wlan_txpower_sec", shown_column(19)},
    {"TimeRebootEnable", shown_column(16)},
    {"RebootTime", shown_column(17)},
};
// clang-format on

void print_rows(Reading &reading) {
    StackText<json::Keys(keys).room()> text;
    json::List list(keys, text);
    while (reading.next_row()) {
        list.print(reading.row());
    }
    list.close(list.count());
    if (!list.complete()) {
        reading.call().fail(ENOMEM);
    }
}

}  // namespace

int print_zero_config_groups() {
    SharedConnection connection;
    const int first = first_group_number(connection);
    json::print("{\"WlanGroupList\":");
    // Deliberate: a first group with the number 0 hides all of them.
    if (first < 1) {
        json::print(json::no_list);
        return 0;
    }
    json::print(json::opening);
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
