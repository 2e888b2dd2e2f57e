// What the engines know of a rule table.
#pragma once

#include "routerdb.h"
#include "rules/field.h"

namespace routerdb {

/// How a list builder words its failures.
enum class BuilderMessages : std::uint8_t { common, detailed };

/// A descriptor: nothing but data, which programs beside the library may read as well. It starts as what most tables
/// are; what a table does differently is said with the functions below.
struct RuleTable {
    char name[21];
    char order_column[3];
    std::uint8_t id;
    std::uint8_t delete_id;  // the table id that deletes are sent under
    BuilderMessages messages;
    std::uint8_t field_count;
    std::uint16_t record_size;
    const Field *fields;  // in the order of the columns of insert and update

    constexpr RuleTable ordered_by(const char (&column)[3]) const {
        RuleTable table = *this;
        for (std::size_t i = 0; i < sizeof(order_column); ++i) {
            table.order_column[i] = column[i];
        }
        return table;
    }
    constexpr RuleTable deleting_under(std::uint8_t other_id) const {
        RuleTable table = *this;
        table.delete_id = other_id;
        return table;
    }
    constexpr RuleTable with_detailed_messages() const {
        RuleTable table = *this;
        table.messages = BuilderMessages::detailed;
        return table;
    }

    constexpr std::size_t list_size() const {
        return sizeof(std::uint32_t) + std::size_t{ROUTERDB_LIST_CAPACITY} * record_size;
    }
};

/// A record starts with its id.
inline constexpr std::size_t id_offset = 0;

/// Columns that a table may have at most, its id not counted: a statement's rows are read with a record of so many.
inline constexpr std::size_t most_columns = 32;

template <std::size_t count>
constexpr std::size_t columns_of(const Field (&fields)[count]) {
    std::size_t columns = 0;
    for (const Field &field : fields) {
        columns += field.columns();
    }
    return columns;
}

/// A table listed in order of "id" that has nothing but its columns.
template <typename Record, const auto &fields, std::size_t length>
constexpr RuleTable rule_table(const char (&name)[length], std::uint8_t id) {
    constexpr std::size_t field_count = sizeof(fields) / sizeof(fields[0]);
    static_assert(length <= sizeof(RuleTable::name) && sizeof(Record) <= UINT16_MAX && field_count <= UINT8_MAX);
    static_assert(columns_of(fields) <= most_columns, "the table has more columns than a row is read with");
    RuleTable table{{}, "id", id, id, BuilderMessages::common, field_count, sizeof(Record), fields};
    for (std::size_t i = 0; i < length; ++i) {
        table.name[i] = name[i];
    }
    return table;
}

}  // namespace routerdb
