#include "apinventory/list_json.h"

#include "apinventory/numbers.h"
#include "apinventory/parts.h"
#include "apinventory/status.h"
#include "core/json_list.h"
#include "core/profiles.h"
#include "core/query.h"
#include "core/reading.h"

namespace routerdb {

namespace {

using profiles::parts::free_printing_random;

constexpr ReadProfile page{free_printing_random, {Stream::standard_error, Wording::cannot_prepare}};

// Nothing is said or left behind here: totals that are not had at once are read one by one, which is said.
// clang-format off
constexpr ReadProfile silent_totals{
    {Database::main, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
     Stream::nowhere, Stream::nowhere, no_message, FailedHandle::closed},
    no_message};
// clang-format on

enum class From : std::uint8_t { text, serial_number, stations, no_group_name };

/// A key of an element. Only the columns that are printed are read.
struct Key {
    char name[22];
    From from;
    DeviceColumn shown;  // the width of its member bounds what is printed
    bool in_closing;     // Deliberate: the closing element has fewer keys.
};

// clang-format off
constexpr Key keys[] = {
    {"m_sn", From::serial_number, {}, true},
    {"m_group_name", From::text, device_column("Dev_Group"), true},
    {"m_dev_name", From::text, device_column("Dev_Name"), true},
    {"m_dev_ip", From::text, device_column("Dev_Ipaddress"), true},
    {"m_dev_mac", From::text, device_column("Dev_MAC"), true},
    {"m_onlinetime", From::text, device_column("Dev_OnlineTime"), true},
    {"m_sw_ver", From::text, device_column("Dev_SwVer"), true},
    {"m_sw_name", From::text, device_column("Dev_SwName"), true},
    {"m_channel", From::text, device_column("Channel", radio_part(0)), true},
    {"m_current_channel", From::text, device_column("Current_Channel", radio_part(0)), false},
    {"m_stanum", From::stations, {}, true},
    {"m_dev_status", From::text, device_column("Dev_Status"), true},
    {"m_dev_upgrade_status", From::text, device_column("Dev_Upgrade_Status"), true},
    {"m_wlan_group_name", From::no_group_name, {}, true},
    {"m_wlan_radio_num", From::text, device_column("Dev_Wlan_Radio_Num"), true},
    {"m_channel_sec", From::text, device_column("Channel", radio_part(1)), true},
    {"m_current_channel_sec", From::text, device_column("Current_Channel", radio_part(1)), false},
    {"m_TimeRebootEnable", From::text, device_column("Dev_RebootTime_Enable"), true},
    {"m_RebootTime", From::text, device_column("Dev_RebootTime"), true},
    {"m_CurrentTime", From::text, device_column("Dev_CurrentDateTime"), true},
    {"m_dev_modelname", From::text, device_column("Dev_Model_Name"), true},
    {"m_wlan_txpower", From::text, device_column("Txpower", radio_part(0)), true},
    {"m_wlan_txpower_sec", From::text, device_column("Txpower", radio_part(1)), true},
    {"m_wlan_ssid", From::text, device_column("Ssid", network_part(0)), false},
    {"m_wlan_ssid_sec", From::text, device_column("Ssid", network_part(4)), false},
};
// clang-format on

/// What is printed behind the list.
struct Totals {
    int page;
    int pages;
    int devices;
    int online;
    int stations;
};

int read_number(SharedConnection &connection, const char *sql) {
    return query(profiles::sql_int_count_route, sql, {nullptr}, &connection);
}

void read_each(Totals &totals, SharedConnection &connection) {
    totals.devices = read_number(connection, "select count(*) from DevInfo where Dev_Ipaddress <> '';");
    totals.online = count_online(&connection);
    if (totals.devices > 0) {
        const int first = read_number(connection, "select sum(Dev_Wlan_Sta_Num) from DevInfo ;");
        const int second = read_number(connection, "select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;");
        totals.stations = wrapping_sum(first, second);
    }
}

/// Reads all of them by one statement that says nothing when it fails.
/// @return whether they are what the statements one by one would give
bool read_at_once(Totals &totals, SharedConnection &connection) {
    Reading reading(silent_totals, &connection);
    if (!reading.open() ||
        !reading.prepare("select sum(Dev_Ipaddress <> ''),sum(Dev_Status='1'),sum(Dev_Wlan_Sta_Num),"
                         "sum(Dev_Wlan_Sta_Num_sec) from DevInfo;") ||
        !reading.first_row()) {
        return false;
    }
    const Row row = reading.row();
    totals.devices = row.number(0);
    totals.online = row.number(1);
    totals.stations = totals.devices > 0 ? wrapping_sum(row.number(2), row.number(3)) : 0;
    return true;
}

Totals read_totals(SharedConnection &connection) {
    Totals totals{};
    if (!build_profile.merges_totals || !read_at_once(totals, connection)) {
        read_each(totals, connection);
    }
    return totals;
}

/// The stations of both radios, or of the first one unless the access point has eight networks.
long stations_of(const Row &row) {
    constexpr int wlans_of_two_radios = 8;
    constexpr DeviceColumn networks = device_column("Dev_Wlan_Radio_Num");
    constexpr DeviceColumn of_first = device_column("Sta_Num", radio_part(0));
    constexpr DeviceColumn of_second = device_column("Sta_Num", radio_part(1));
    const auto number = [&row](DeviceColumn shown) {
        return number_in(field_text(row.text(shown.column), shown.width - 1U));
    };
    const int first = number(of_first);
    return number(networks) == wlans_of_two_radios ? first + number(of_second) : first;
}

void print_device(const Row &row) {
    json::Element element;
    for (const Key &key : keys) {
        switch (key.from) {
            case From::text:
                element.print(key.name, field_text(row.text(key.shown.column), key.shown.width - 1U));
                break;
            case From::serial_number:
                element.print(key.name, static_cast<unsigned long>(static_cast<std::uint32_t>(row.unsigned_number(0))));
                break;
            case From::stations:
                element.print(key.name, stations_of(row));
                break;
            case From::no_group_name:
                element.print(key.name, "N/A");
                break;
        }
    }
    json::close_element();
}

void print_totals(const Totals &totals) {
    json::print_total("pagenum", totals.page);
    json::print_total("pagecount", totals.pages);
    json::print_total("sumcount", totals.devices);
    json::print_total("onlinecount", totals.online);
    json::print_total("stasumnum", totals.stations);
    json::close_object();
}

void print_rows(Reading &reading, Totals totals) {
    int count = 0;
    for (bool more = reading.first_row(); more; more = reading.next_row()) {
        print_device(reading.row());
        ++count;
    }
    if (count == 0) {
        totals.page = 1;
        totals.pages = 0;
    }
    json::Element closing;
    for (const Key &key : keys) {
        if (key.in_closing) {
            closing.print(key.name, "");
        }
    }
    json::close_list(count);
    print_totals(totals);
}

}  // namespace

void print_page(const PageRequest &request) {
    SharedConnection connection;
    Totals totals = read_totals(connection);
    SqlText count;
    append_count(count, request);
    const int rows = query(profiles::sql_int_count_route, count, {nullptr}, &connection);
    totals.pages = pages_for(rows, request);
    const int last = totals.pages < request.page ? totals.pages : request.page;
    totals.page = last == 0 ? 1 : last;

    json::open_object("ApDevList");
    if (rows < 1) {
        json::print("{\"count\":\"0\"");
        print_totals({1, 0, 0, 0, 0});
        return;
    }
    json::open_list();
    SqlText sql;
    append_page(sql, request);
    Reading reading(page, &connection);
    if (sql.complete() && reading.open() && reading.prepare(sql.c_str())) {
        print_rows(reading, totals);
    }
}

}  // namespace routerdb
