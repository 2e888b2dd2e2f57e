// What the tests know of a DevInfo record: each member's place, given by number, and what happens to it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "routerdb.h"

namespace places {

inline constexpr std::size_t record_size = 6936;
inline constexpr int device_columns = 160;

/// In place of a column.
inline constexpr int none = -1;

/// When a difference between an access point and its group counts.
enum class Counts {
    never,
    always,
    with_wep,       // when the group's network uses WEP
    with_key,       // when the group's network uses a pre-shared key
    as_zero_config  // against a zero-configuration group only
};

/// Which kind of group gives it to an access point.
enum class Given { by_none, by_both, by_wlan_group, by_zero_config };

/// A text member.
struct Place {
    std::string name;
    std::size_t offset;
    std::size_t width;
    int device;  // column of DevInfo
    int group;   // column of WlanGroupInfo and WlanZeroCfgGroupInfo; the latter alone has those from 122 on
    Counts counts;
    Given given;
    int wlan = 0;   // its network, 1 to 8; 0 for none
    int radio = 0;  // its radio, 1 or 2, the radio of its network; 0 for none
};

/// All of them, in the order of the record.
const std::vector<Place> &all();

/// The one with a name, such as "Dev_Wlan3_Ssid".
const Place &named(const std::string &name);

/// The text in a place.
std::string text(const DevInfo &record, const Place &place);
std::string text(const DevInfo &record, const std::string &name);

/// Puts a text there, its terminator included if there is room for it.
void put(DevInfo &record, const Place &place, const std::string &text);
void put(DevInfo &record, const std::string &name, const std::string &text);

/// A record as bytes, and bytes as a record.
std::string bytes_of(const DevInfo &record);
DevInfo record_of(const std::string &bytes);

/// A record whose bytes are odd: what a function leaves as it is shows.
DevInfo odd_record();

/// Which texts of two records differ first, as the name of a member and its texts; empty if none do.
std::string text_difference(const DevInfo &expected, const DevInfo &actual);

/// The same, and bytes behind the texts count.
std::string difference(const DevInfo &expected, const DevInfo &actual);

}  // namespace places
