// Derived members that several rules have: the referenced groups, and what a rule takes over from them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "rules/references.h"

namespace routerdb {

/// Places in the record of a rule that holds at times of its own or at those of a time group.
struct TimeSpan {
    std::uint16_t control;
    std::uint16_t group_id;
    std::uint16_t group;       // copy of the group
    std::uint16_t group_size;  // bytes of it that the record carries
    std::uint16_t group_name;
    std::uint16_t weekday;
    std::uint16_t start_time;
    std::uint16_t end_time;
    std::uint16_t valid;  // flag that the span is known
};

/// Stands for the flag in a record that has none.
inline constexpr std::uint16_t no_flag = 0;

/// Looks a referenced time group up, copies it, its name and its times, and sets the flag.
void derive_time_span(const TimeSpan &span, References &references, void *record);

/// Places in the record of a rule that holds for addresses of its own or for those of an IP group.
struct AddressRange {
    std::uint16_t control;
    std::uint16_t group_id;
    std::uint16_t group;  // copy of the group
    std::uint16_t group_name;
    std::uint16_t start;  // range that the group's replaces
    std::uint16_t end;
    std::uint16_t width;  // of either address, or own_range_stays
};

/// Stands for the width in a record that keeps its own range beside the group's.
inline constexpr std::uint16_t own_range_stays = 0;

/// Looks a referenced IP group up and copies it, its name and, where it replaces the rule's own, its range.
void derive_address_range(const AddressRange &range, References &references, void *record);

}  // namespace routerdb

// The members of `Record` have the same names in every rule that has them.
#define RULE_TIME_SPAN(flag)                                                                        \
    {                                                                                               \
        offsetof(Record, timecontrol), offsetof(Record, timegroup_id), offsetof(Record, timegroup), \
            sizeof(Record::timegroup), offsetof(Record, timegroup_name), offsetof(Record, weekday), \
            offsetof(Record, start_time), offsetof(Record, end_time), flag                          \
    }
#define RULE_ADDRESS_RANGE(width)                                                                           \
    {                                                                                                       \
        offsetof(Record, ipcontrol), offsetof(Record, ipgroup_id), offsetof(Record, ipgroup),               \
            offsetof(Record, ipgroup_name), offsetof(Record, devstartip), offsetof(Record, devendip), width \
    }
