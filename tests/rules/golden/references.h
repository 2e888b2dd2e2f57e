// Groups that rules reference, and what the records of the rules hold of them. It is the same in several tables, at
// other places.
#pragma once

#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

/// Insert a group. A time group holds on weekdays 1, 3, 4 and 7 from 18:00 to 23:59.
std::string time_group(const char *id, const std::string &name, const std::string &mark);
std::string ip_group(const char *id, const std::string &name, const std::string &start, const std::string &end);

/// Inserts row 8 of a table; `control` and `group` stand there as SQL.
using InsertReferring = std::function<std::string(const std::string &control, const std::string &group)>;

/// Where a record holds its times and its time group.
struct TimePlaces {
    std::size_t control;  // and the group's id behind it
    std::size_t group_name;
    std::size_t group;
    std::size_t weekdays;
    std::size_t start_time;
    std::size_t end_time;
};

/// Every way in which a rule comes by its times.
/// @param insert  a row with the weekdays 21 to 27 and the times '21:00' and '22:00'
/// @param record  of that row, its times left out
std::vector<Built> with_times(const InsertReferring &insert, const support::Record &record, const TimePlaces &places);

/// Where a record holds its range of addresses and its IP group.
struct RangePlaces {
    std::size_t control;  // and the group's id behind it
    std::size_t group_name;
    std::size_t group;
    std::size_t start;
    std::size_t end;
};

/// What becomes of a rule's own range when it references a group: it stays, or the group's takes its place, cut so
/// that so many characters are left.
struct Replacing {
    bool replaces;
    std::size_t characters;
};

inline constexpr Replacing own_range_stays{false, 0};

/// Every way in which a rule comes by its range.
/// @param insert  a row with the range '10.0.0.1' to '10.0.0.9'
/// @param record  of that row, its range left out
std::vector<Built> with_ranges(const InsertReferring &insert, const support::Record &record, const RangePlaces &places,
                               const Replacing &replacing);

/// All of them.
std::vector<Built> joined(std::vector<Built> built, const std::vector<std::vector<Built>> &others);

}  // namespace golden
