// Where a column's values lie in a record, and how they get there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "support/record.h"

namespace golden {

inline constexpr std::int32_t lowest = -2147483648;
inline constexpr std::int32_t highest = 2147483647;

std::string of(std::size_t count, char letter);

/// So many characters, a number at their end.
std::string numbered(std::size_t count, char letter, int n);

enum class Kind { number, text, unread };

/// When a builder carries a column over into the record.
enum class Carried {
    always,
    with_own_time,     // timecontrol is 1
    with_time_group,   // timecontrol is 2
    with_ip_group,     // ipcontrol is 2
    without_ip_group,  // ipcontrol is not 2
    never
};

struct Place {
    std::string column;
    Kind kind;
    std::size_t offset;
    std::size_t width;
    Carried carried;
};

inline Place number(const char *column, std::size_t offset, Carried carried = Carried::always) {
    return {column, Kind::number, offset, 4, carried};
}

inline Place text(const char *column, std::size_t offset, std::size_t width, Carried carried = Carried::always) {
    return {column, Kind::text, offset, width, carried};
}

/// A column that no record has.
inline Place unread(const char *column) {
    return {column, Kind::unread, 0, 0, Carried::never};
}

/// Seven columns and seven numbers.
#define GOLDEN_WEEKDAYS(offset, carried)                                                        \
    number("weekday1", (offset), carried), number("weekday2", (offset) + 4, carried),           \
        number("weekday3", (offset) + 8, carried), number("weekday4", (offset) + 12, carried),  \
        number("weekday5", (offset) + 16, carried), number("weekday6", (offset) + 20, carried), \
        number("weekday7", (offset) + 24, carried)

using Places = std::vector<Place>;

/// A value for each place, in words. Where they stand for what a database holds, they are SQL.
using Values = std::vector<std::string>;

/// The number of a column's place; throws if there is none.
std::size_t index_of(const Places &places, const std::string &column);
bool has(const Places &places, const std::string &column);

/// The values with those of some columns replaced.
struct Change {
    const char *column;
    std::string value;
};
Values changed(const Places &places, Values values, const std::vector<Change> &changes);

/// As SQL has them: texts in quotes.
Values as_sql(const Places &places, Values values);

/// A row whose values are SQL, into a table that has the columns in the order of the places.
std::string insertion(const std::string &table, const Values &sql);

/// Puts a value where it belongs; a text is terminated if there is room for it.
void put(support::Record &record, const Place &place, const std::string &value);

/// A statement with values in the place of "{name}" of their columns.
std::string filled(const std::string &statement, const Places &places, const Values &values);

/// The same with one value.
std::string filled(const std::string &statement, const std::string &name, const std::string &value);

}  // namespace golden
