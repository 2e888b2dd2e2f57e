#include "apinventory/list_json.h"

#include "apinventory/numbers.h"
#include "apinventory/parts.h"
#include "apinventory/totals.h"
#include "core/profiles.h"
#include "core/query.h"
#include "core/reading.h"
#include "json/json_list.h"

namespace routerdb {

namespace {

using namespace profiles;

constexpr ReadProfile page = unguarded.when_not_opened(code_on_error).when_not_prepared(prepare_on_error);

/// What is given for an element beside its row.
enum Given : std::uint8_t { serial_number, stations, no_group_name };

/// The column of a member, cut as the record would cut it. Only the columns that are printed are read.
constexpr json::Value shown(std::string_view name, const Part &part = device_part) {
    const DeviceColumn column = device_column(name, part);
    return json::column_text(column.number, static_cast<std::uint8_t>(column.width - 1));
}

// Deliberate: the closing element has fewer keys.
// clang-format off
constexpr json::Key keys[] = {
    {"m_sn", json::given(serial_number)},
    {"m_group_name", shown("Dev_Group")},
    {"m_dev_name", shown("Dev_Name")},
    {"m_dev_ip", shown("Dev_Ipaddress")},
    {"m_dev_mac", shown("Dev_MAC")},
    {"m_onlinetime", shown("Dev_OnlineTime")},
    {"m_sw_ver", shown("Dev_SwVer")},
    {"m_sw_name", shown("Dev_SwName")},
    {"m_channel", shown("Channel", first_radio)},
    {"m_current_channel", shown("Current_Channel", first_radio), json::not_in_closing},
    {"m_stanum", json::given(stations)},
    {"m_dev_status", shown("Dev_Status")},
    {"m_dev_upgrade_status", shown("Dev_Upgrade_Status")},
    {"m_wlan_group_name", json::given(no_group_name)},
    {"m_wlan_radio_num", shown("Dev_Wlan_Radio_Num")},
    {"m_channel_sec", shown("Channel", second_radio)},
    {"m_current_channel_sec", shown("Current_Channel", second_radio), json::not_in_closing},
    {"m_TimeRebootEnable", shown("Dev_RebootTime_Enable")},
    {"m_RebootTime", shown("Dev_RebootTime")},
    {"m_CurrentTime", shown("Dev_CurrentDateTime")},
    {"m_dev_modelname", shown("Dev_Model_Name")},
    {"m_wlan_txpower", shown("Txpower", first_radio)},
    {"m_wlan_txpower_sec", shown("Txpower", second_radio)},
    {"m_wlan_ssid", shown("Ssid", network_part(0)), json::not_in_closing},
    {"m_wlan_ssid_sec", shown("Ssid", network_part(4)), json::not_in_closing},
};
// clang-format on

int number_of(const Row &row, DeviceColumn column) {
    return number_in(field_text(row.text(column.number), column.width - 1U));
}

/// The stations of both radios, or of the first one unless the access point has eight networks.
long stations_of(const Row &row) {
    constexpr DeviceColumn networks = device_column("Dev_Wlan_Radio_Num");
    constexpr DeviceColumn of_first_radio = device_column("Sta_Num", first_radio);
    constexpr DeviceColumn of_second_radio = device_column("Sta_Num", second_radio);
    constexpr int networks_of_two_radios = 8;
    const int first = number_of(row, of_first_radio);
    return number_of(row, networks) == networks_of_two_radios ? first + number_of(row, of_second_radio) : first;
}

void print_device(json::List &list, const Row &row) {
    StackText<24> serial_number_text;
    serial_number_text.append(static_cast<unsigned long>(static_cast<std::uint32_t>(row.unsigned_number(0))));
    StackText<24> stations_text;
    stations_text.append(stations_of(row));
    std::string_view given[no_group_name + 1];
    given[serial_number] = serial_number_text.view();
    given[stations] = stations_text.view();
    given[no_group_name] = "N/A";
    list.print(row, given);
}

void append_total(Text &text, const char *key, int value) {
    text.append(",\"").append(key).append("\":\"").append(long{value}).append("\"");
}

using EndText = StackText<160>;

/// What stands behind the count, to the end of the object.
void append_end(Text &text, PageNumbers numbers, const Totals &totals) {
    append_total(text, "pagenum", numbers.page);
    append_total(text, "pagecount", numbers.pages);
    append_total(text, "sumcount", totals.devices);
    append_total(text, "onlinecount", totals.online);
    append_total(text, "stasumnum", totals.stations);
    text.append("}}");
}

/// The answer when the filter lets nothing through. Its totals are all 0.
void print_no_device(const PageRequest &request) {
    EndText text;
    text.append("{\"count\":\"0\"");
    append_end(text, page_numbers(request, 0, 0), {});
    json::print(text.c_str());
}

void print_rows(Reading &reading, const PageRequest &request, int matches, const Totals &totals) {
    StackText<json::Keys(keys).room()> text;
    json::List list(keys, text);
    while (reading.next_row()) {
        print_device(list, reading.row());
    }
    EndText end;
    append_end(end, page_numbers(request, matches, list.count()), totals);
    list.close_in_one_piece(end.c_str());
    if (!list.complete()) {
        reading.call().fail(ENOMEM);
    }
}

}  // namespace

void print_page(const PageRequest &request) {
    SharedConnection connection;
    const Totals totals = read_totals(connection);
    SqlText sql;
    append_count(sql, request);
    const int matches = first_number(sql_int_count_route, sql, &connection);
    json::print("{\"ApDevList\":");
    if (matches < 1) {
        print_no_device(request);
        return;
    }
    json::print(json::opening);
    sql.clear();
    append_page(sql, request);
    Reading reading(page, &connection);
    if (reading.start(sql) == Start::ready) {
        print_rows(reading, request, matches, totals);
    }
}

}  // namespace routerdb
