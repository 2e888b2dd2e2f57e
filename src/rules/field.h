// One column of a rule table and its place in the record.
#pragma once

#include <cstddef>
#include <cstdint>

namespace routerdb {

enum class Kind : std::uint8_t {
    number,
    text,
    weekdays,  // seven numbers in a row, in seven columns `weekday1` to `weekday7`
    zero,      // written as 0, never read, not in the record
};

/// When a builder reads a column: always, or depending on a control member of the record, such as `timecontrol`. The
/// control column stands before the columns that depend on it.
enum class When : std::uint8_t {
    always,
    own,             // the control is 1: the rule has values of its own
    referenced,      // the control is 2: this is the id of the group that has them
    not_referenced,  // the control is anything but 2
};

inline constexpr std::int32_t control_own = 1;
inline constexpr std::int32_t control_referenced = 2;

/// Position of a column that is found by its name in each statement.
inline constexpr std::int8_t by_name = -1;

struct Field {
    char column[18];
    Kind kind : 2;
    When when : 2;
    std::int8_t position;   // in the rows of "select *"; of weekdays, the first one
    std::uint16_t control;  // offset of the control member; no meaning with When::always
    std::uint16_t offset;
    std::uint16_t width;

    constexpr unsigned columns() const { return kind == Kind::weekdays ? 7 : 1; }
};

}  // namespace routerdb

// A row of a table's field list: the member of `Record` gives column name, offset and width, none of which is typed
// a second time.
#define RULE_FIELD(kind, when, control, member, position)                                         \
    {                                                                                             \
#member, routerdb::Kind::kind, routerdb::When::when, position, offsetof(Record, control), \
            offsetof(Record, member), sizeof(Record::member)                                      \
    }

#define RULE_NUMBER_FIELD(member, position) RULE_FIELD(number, always, id, member, position)
#define RULE_TEXT_FIELD(member, position) RULE_FIELD(text, always, id, member, position)
#define RULE_WEEKDAYS_FIELD(position) RULE_FIELD(weekdays, always, id, weekday, position)

#define RULE_OWN_WEEKDAYS_FIELD(position) RULE_FIELD(weekdays, own, timecontrol, weekday, position)
#define RULE_OWN_TIME_FIELD(member, position) RULE_FIELD(text, own, timecontrol, member, position)
#define RULE_TIME_GROUP_FIELD(position) RULE_FIELD(number, referenced, timecontrol, timegroup_id, position)

#define RULE_OWN_RANGE_FIELD(member, position) RULE_FIELD(text, not_referenced, ipcontrol, member, position)
#define RULE_IP_GROUP_FIELD(position) RULE_FIELD(number, referenced, ipcontrol, ipgroup_id, position)

#define RULE_ZERO_FIELD(column) \
    { #column, routerdb::Kind::zero, routerdb::When::always, routerdb::by_name, 0, 0, 0 }
