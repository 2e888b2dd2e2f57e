// The parts of a DevInfo record, in each of which the members of its kind stand once: what belongs to the access point
// as such, its eight networks and its two radios.
#pragma once

#include "apinventory/members.h"
#include "text/text.h"

namespace routerdb {

/// The tables that records are read from and written to.
enum class Table : std::uint8_t { devices, wlan_groups, zero_config_groups };

struct Part {
    members::Kind kind;
    std::uint8_t number;                 // of the network or the radio, from 0
    std::uint8_t first, end;             // rows of its members
    std::uint16_t offset;                // what it adds to their offsets
    std::uint8_t in_devices, in_groups;  // what it adds to their columns
};

constexpr Part make_device_part() {
    return {members::Kind::device, 0, 0, members::first_row(members::Kind::network), 0, 0, 0};
}

constexpr Part make_network_part(unsigned number) {
    return {members::Kind::network,
            static_cast<std::uint8_t>(number),
            members::first_row(members::Kind::network),
            members::first_row(members::Kind::radio),
            static_cast<std::uint16_t>(offsetof(DevInfo, wlan) + sizeof(DevWlanEntry) * number),
            static_cast<std::uint8_t>(16 + 12 * number),
            static_cast<std::uint8_t>(2 + 11 * number)};
}

// The second radio lies at a fixed distance and not in an array with the first one: callers know its members by names
// of their own, such as Dev_Wlan_Channel_sec, which one struct for both could not give them.
constexpr Part make_radio_part(unsigned number) {
    constexpr std::size_t distance = offsetof(DevInfo, Dev_Wlan_Mode_sec) - offsetof(DevInfo, Dev_Wlan_Mode);
    return {members::Kind::radio,
            static_cast<std::uint8_t>(number),
            members::first_row(members::Kind::radio),
            members::rows,
            static_cast<std::uint16_t>(distance * number),
            static_cast<std::uint8_t>(20 * number),
            static_cast<std::uint8_t>(16 * number)};
}

inline constexpr Part parts[] = {
    make_device_part(),   make_network_part(0), make_network_part(1), make_network_part(2),
    make_network_part(3), make_network_part(4), make_network_part(5), make_network_part(6),
    make_network_part(7), make_radio_part(0),   make_radio_part(1),
};
inline constexpr const Part &device_part = parts[0];

constexpr const Part &network_part(unsigned number) {
    return parts[1 + number];
}

inline constexpr const Part &first_radio = parts[1 + ROUTERDB_WLANS];
inline constexpr const Part &second_radio = parts[2 + ROUTERDB_WLANS];
static_assert(&second_radio + 1 == parts + sizeof(parts) / sizeof(*parts));

/// The first network of each radio: their SSIDs are never converted, everywhere.
constexpr bool leads_its_radio(const Part &network) {
    return network.number == 0 || network.number == 4;
}

/// The members that a part has.
struct Members {
    const members::Member *first;
    const members::Member *last;

    constexpr const members::Member *begin() const { return first; }
    constexpr const members::Member *end() const { return last; }
};

constexpr Members members_of(const Part &part) {
    return {members::table + part.first, members::table + part.end};
}

/// The column of a part's member, or no_column.
constexpr std::uint8_t column_of(Table in, const Part &part, const members::Member &member) {
    using namespace members;
    const std::uint8_t column = in == Table::devices ? member.in_devices : member.in_groups;
    if (column == no_column) {
        return no_column;
    }
    if (in == Table::devices) {
        return static_cast<std::uint8_t>(column + part.in_devices);
    }
    if (column < wlan_group_columns) {
        return static_cast<std::uint8_t>(column + part.in_groups);
    }
    // Behind those of both tables the radios stand side by side.
    return in == Table::zero_config_groups ? static_cast<std::uint8_t>(column + part.number) : no_column;
}

/// A column of `DevInfo` and the width of its member, for those who show it without a record.
struct DeviceColumn {
    std::uint8_t number;
    std::uint8_t width;
};

/// The one of a member, by its name: what is no member of the part does not compile.
constexpr DeviceColumn device_column(std::string_view name, const Part &part = device_part) {
    const std::uint8_t row = members::row_of(name);
    const members::Member &member =
        members::table[row >= part.first && row < part.end ? row : members::no_such_member()];
    return {column_of(Table::devices, part, member), member.width};
}

inline char *field_of(DevInfo &record, const Part &part, const members::Member &member) {
    return reinterpret_cast<char *>(&record) + part.offset + member.offset;
}

inline std::string_view text_of(const DevInfo &record, const Part &part, const members::Member &member) {
    return field_text(reinterpret_cast<const char *>(&record) + part.offset + member.offset, member.width);
}

}  // namespace routerdb
