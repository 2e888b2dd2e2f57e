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

/// When a builder reads the column. The control columns stand before those that depend on them.
enum class Source : std::uint8_t {
    always,
    own_time,    // the rule has its own weekdays and times
    time_group,  // the rule references a time group: this is its id
};

/// Position of a column that a statement's column names have to tell.
inline constexpr std::int8_t by_name = -1;

struct Field {
    char column[18];
    Kind kind;
    Source source;
    std::int8_t position;  // in the rows of "select *"; of weekdays, the first one
    std::uint16_t offset;
    std::uint16_t width;

    constexpr unsigned columns() const { return kind == Kind::weekdays ? 7 : 1; }
};

}  // namespace routerdb

// A row of a table's field list: the member of `Record` gives column name, offset and width, none of which is typed
// a second time.
#define ROUTERDB_FIELD(kind, source, member, position)                                               \
    {                                                                                                \
#member, routerdb::Kind::kind, routerdb::Source::source, position, offsetof(Record, member), \
            sizeof(Record::member)                                                                   \
    }

#define NUMBER(member, position) ROUTERDB_FIELD(number, always, member, position)
#define TEXT(member, position) ROUTERDB_FIELD(text, always, member, position)
#define WEEKDAYS(position) ROUTERDB_FIELD(weekdays, always, weekday, position)
#define OWN_WEEKDAYS(position) ROUTERDB_FIELD(weekdays, own_time, weekday, position)
#define OWN_TIME(member, position) ROUTERDB_FIELD(text, own_time, member, position)
#define TIME_GROUP_ID(position) ROUTERDB_FIELD(number, time_group, timegroup_id, position)
