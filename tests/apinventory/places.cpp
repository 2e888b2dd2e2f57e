#include "apinventory/places.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "support/record.h"

namespace places {

namespace {

using C = Counts;
using G = Given;

// clang-format off
const Place before_wlans[] = {
    {"Dev_Group",             4, 200,   1, none, C::never, G::by_none},
    {"Dev_Name",            204, 200,   2, none, C::never, G::by_none},
    {"Dev_Manufacture",     404, 100,  12, none, C::never, G::by_none},
    {"Dev_Model_Name",      504, 100,  13, none, C::never, G::by_none},
    {"Dev_IP_Assign",       604,   5, 154, none, C::never, G::by_none},
    {"Dev_Ipaddress",       609,  20,   3, none, C::never, G::by_none},
    {"Dev_Status",          629,   5, 153, none, C::never, G::by_none},
    {"Dev_Upgrade_Status",  634,  25, 159, none, C::never, G::by_none},
    {"Dev_Subnet",          659,  20,   4, none, C::never, G::by_none},
    {"Dev_Gateway",         679,  20,   5, none, C::never, G::by_none},
    {"Dev_Dns1",            699,  20,   6, none, C::never, G::by_none},
    {"Dev_Dns2",            719,  20,   7, none, C::never, G::by_none},
    {"Dev_Sys_TrapIP",      739,  20, 152, none, C::never, G::by_none},
    {"Dev_MAC",             759,  20,   8, none, C::never, G::by_none},
    {"Dev_OnlineTime",      779,  50,   9, none, C::never, G::by_none},
    {"Dev_SwName",          829, 200,  10, none, C::never, G::by_none},
    {"Dev_SwVer",          1029, 200,  11, none, C::never, G::by_none},
    {"Dev_Wlan_GroupId",   1229,   5,  14,    0, C::never, G::by_wlan_group},
    {"wlan_group_name",    1234, 100, none,   1, C::never, G::by_none},
    {"Dev_Wlan_Radio_Num", 1334,   5,  15, none, C::never, G::by_none},
};

// Of network 1, which starts at byte 1339, column 16 of DevInfo and column 2 of a group. The next one is 635 bytes, 12
// and 11 columns further on.
const Place first_wlan[] = {
    {"Enable",         1339,   5, 16,    2, C::always,   G::by_both},
    {"Hide_Ssid",      1344,   5, 17,    3, C::always,   G::by_both},
    {"Ssid",           1349, 100, 18,    4, C::always,   G::by_both},
    {"VlanId",         1449,   5, 19,    5, C::always,   G::by_both},
    {"Bssid",          1454,  20, 20, none, C::never,    G::by_none},
    {"Security",       1474,  20, 21,    6, C::always,   G::by_both},
    {"Securitycipher", 1494,  20, 23,    8, C::always,   G::by_both},
    {"Authmode",       1514,  20, 22,    7, C::always,   G::by_both},
    {"Wep_Type",       1534,  20, 24,    9, C::with_wep, G::by_both},
    {"Wep_Value",      1554, 200, 25,   10, C::with_wep, G::by_both},
    {"Psk_Type",       1754,  20, 26,   11, C::with_key, G::by_both},
    {"Psk_Value",      1774, 200, 27,   12, C::with_key, G::by_both},
};

// Of the first radio. The second one's names end in "_sec"; it lies 190 bytes, 20 and 16 columns further on, but for
// the transmit power of a group.
const Place first_radio[] = {
    {"Dev_Wlan_Mode",              6419, 5, 119,   96, C::never,          G::by_none},
    {"Dev_Wlan_Bw",                6424, 5, 120,   97, C::never,          G::by_none},
    {"Dev_Wlan_Ampdu",             6429, 5, 121,   98, C::always,         G::by_both},
    {"Dev_Wlan_Isolate",           6434, 5, 114,   91, C::always,         G::by_both},
    {"Dev_Wlan_Rate",              6439, 5, 115,   92, C::never,          G::by_both},
    {"Dev_Wlan_Beacon_Inertval",   6444, 5, 122,   99, C::always,         G::by_both},
    {"Dev_Wlan_Rts",               6449, 5, 123,  100, C::always,         G::by_both},
    {"Dev_Wlan_Cts",               6454, 5, 124,  101, C::always,         G::by_both},
    {"Dev_Wlan_ShortGI",           6459, 5, 125,  102, C::always,         G::by_both},
    {"Dev_Wlan_Txpower",           6464, 5, 126,  124, C::as_zero_config, G::by_zero_config},
    {"Dev_Wlan_MaxTxpower",        6469, 5, 127, none, C::never,          G::by_none},
    {"Dev_Wlan_Channel",           6474, 5, 112,   90, C::never,          G::by_zero_config},
    {"Dev_Wlan_RxOption",          6479, 5, 129,  103, C::never,          G::by_both},
    {"Dev_Wlan_CoverageThreshold", 6484, 5, 130,  104, C::always,         G::by_both},
    {"Dev_Wlan_Current_Channel",   6489, 5, 113, none, C::never,          G::by_none},
    {"Dev_Wlan_Sta_Num",           6494, 5, 128, none, C::never,          G::by_none},
    {"Dev_Wlan_MaxStaNum",         6499, 5, 131,  105, C::never,          G::by_none},
};
constexpr int power_of_second_radio = 125;

const Place between_radios[] = {
    {"Dev_RebootTime_Enable", 6504,  5, 157,  122, C::as_zero_config, G::by_zero_config},
    {"Dev_RebootTime",        6509, 50, 158,  123, C::as_zero_config, G::by_zero_config},
    {"Dev_CurrentDateTime",   6559, 50, 156, none, C::never,          G::by_none},
};

const Place after_radios[] = {
    {"radius_server_ip",   6694,  20, none, none, C::never, G::by_both},
    {"radius_server_port", 6714,  20, none, none, C::never, G::by_both},
    {"radius_shared_key",  6734, 200, none, none, C::never, G::by_both},
};
// clang-format on

int moved(int column, int distance) {
    return column == none ? none : column + distance;
}

Place of_wlan(Place place, int number) {
    place.name = "Dev_Wlan" + std::to_string(number) + "_" + place.name;
    place.offset += 635 * static_cast<std::size_t>(number - 1);
    place.device += 12 * (number - 1);
    place.group = moved(place.group, 11 * (number - 1));
    place.wlan = number;
    place.radio = number <= 4 ? 1 : 2;
    return place;
}

Place of_radio(Place place, int number) {
    place.radio = number;
    if (number == 2) {
        place.group = place.name == "Dev_Wlan_Txpower" ? power_of_second_radio : moved(place.group, 16);
        place.name += "_sec";
        place.offset += 190;
        place.device += 20;
    }
    return place;
}

std::vector<Place> make_all() {
    std::vector<Place> places(std::begin(before_wlans), std::end(before_wlans));
    for (int number = 1; number <= 8; ++number) {
        for (const Place &place : first_wlan) {
            places.push_back(of_wlan(place, number));
        }
    }
    for (const Place &place : first_radio) {
        places.push_back(of_radio(place, 1));
    }
    places.insert(places.end(), std::begin(between_radios), std::end(between_radios));
    for (const Place &place : first_radio) {
        places.push_back(of_radio(place, 2));
    }
    places.insert(places.end(), std::begin(after_radios), std::end(after_radios));
    return places;
}

}  // namespace

const std::vector<Place> &all() {
    static const std::vector<Place> places = make_all();
    return places;
}

const Place &named(const std::string &name) {
    const auto found = std::find_if(all().begin(), all().end(), [&](const Place &place) { return place.name == name; });
    if (found == all().end()) {
        throw std::out_of_range("no member " + name);
    }
    return *found;
}

std::string text(const DevInfo &record, const Place &place) {
    const char *field = reinterpret_cast<const char *>(&record) + place.offset;
    return {field, strnlen(field, place.width)};
}

std::string text(const DevInfo &record, const std::string &name) {
    return text(record, named(name));
}

void put(DevInfo &record, const Place &place, const std::string &text) {
    if (text.size() > place.width) {
        throw std::out_of_range(place.name + " has no room for " + text);
    }
    const std::size_t size = std::min(text.size() + 1, place.width);
    std::memcpy(reinterpret_cast<char *>(&record) + place.offset, text.c_str(), size);
}

void put(DevInfo &record, const std::string &name, const std::string &text) {
    put(record, named(name), text);
}

std::string bytes_of(const DevInfo &record) {
    return {reinterpret_cast<const char *>(&record), record_size};
}

DevInfo record_of(const std::string &bytes) {
    DevInfo record;
    std::memcpy(&record, bytes.data(), record_size);
    return record;
}

DevInfo odd_record() {
    return record_of(std::string(record_size, '\x5a'));
}

std::string text_difference(const DevInfo &expected, const DevInfo &actual) {
    for (const Place &place : all()) {
        if (text(expected, place) != text(actual, place)) {
            return place.name + " is \"" + text(actual, place) + "\" instead of \"" + text(expected, place) + "\"";
        }
    }
    return {};
}

std::string difference(const DevInfo &expected, const DevInfo &actual) {
    const std::string difference = text_difference(expected, actual);
    return !difference.empty() ? difference : support::difference(bytes_of(expected), bytes_of(actual));
}

}  // namespace places
