// What the engines know of a rule table.
#pragma once

#include "routerdb.h"
#include "rules/field.h"

namespace routerdb {

/// Places in the record of a rule that has a time of its own or that of a time group.
struct TimeSpan {
    std::uint16_t control;
    std::uint16_t group_id;
    std::uint16_t group;       // copy of the group
    std::uint16_t group_size;  // bytes of it that the record carries
    std::uint16_t group_name;
    std::uint16_t weekday;
    std::uint16_t start_time;
    std::uint16_t end_time;
    std::uint16_t valid;  // flag that the span is known; 0 in a record without one
};

/// In a record whose rules have no time span.
inline constexpr TimeSpan no_time_span{};

struct RuleTable {
    char name[21];
    char order_column[3];  // of the list text, which is "Id" in some tables
    std::uint16_t id;
    std::uint16_t record_size;
    const Field *fields;  // in the order of the columns of insert and update
    std::uint8_t field_count;
    TimeSpan time_span;

    constexpr bool has_time_span() const { return time_span.group_size != 0; }
    constexpr std::size_t list_size() const {
        return sizeof(std::uint32_t) + std::size_t{ROUTERDB_LIST_CAPACITY} * record_size;
    }
};

/// A record starts with its id.
inline constexpr std::size_t id_offset = 0;

}  // namespace routerdb

#define FIELDS(fields) fields, sizeof(fields) / sizeof((fields)[0])

// The members of `Record` that hold a time span have the same names in every rule that has one.
#define TIME_SPAN(valid)                                                                            \
    {                                                                                               \
        offsetof(Record, timecontrol), offsetof(Record, timegroup_id), offsetof(Record, timegroup), \
            sizeof(Record::timegroup), offsetof(Record, timegroup_name), offsetof(Record, weekday), \
            offsetof(Record, start_time), offsetof(Record, end_time), valid                         \
    }
