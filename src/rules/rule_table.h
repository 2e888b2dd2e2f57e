// What the engines know of a rule table.
#pragma once

#include "routerdb.h"
#include "rules/field.h"

namespace routerdb {

class References;

/// How a list builder words its failures.
enum class BuilderMessages : std::uint8_t { common, detailed };

/// Fills the members of a record that are no columns.
using Derive = void (*)(References &references, void *record);

/// A descriptor. It starts as what most tables are; what a table does differently is said with the functions below.
struct RuleTable {
    char name[21];
    char order_column[3];
    std::uint8_t id;
    std::uint8_t delete_id;  // the table id that deletes are sent under
    BuilderMessages messages;
    std::uint8_t field_count;
    std::uint16_t record_size;
    const Field *fields;  // in the order of the columns of insert and update
    Derive derive;        // null if there is nothing to derive

    constexpr RuleTable ordered_by(const char (&column)[3]) const {
        RuleTable table = *this;
        table.order_column[0] = column[0];
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
    constexpr RuleTable deriving(Derive function) const {
        RuleTable table = *this;
        table.derive = function;
        return table;
    }

    constexpr std::size_t list_size() const {
        return sizeof(std::uint32_t) + std::size_t{ROUTERDB_LIST_CAPACITY} * record_size;
    }
};

/// A record starts with its id.
inline constexpr std::size_t id_offset = 0;

/// A table listed in order of "id" that has nothing but its columns.
template <typename Record, std::size_t length, std::size_t count>
constexpr RuleTable rule_table(const char (&name)[length], std::uint8_t id, const Field (&fields)[count]) {
    static_assert(length <= sizeof(RuleTable::name) && sizeof(Record) <= UINT16_MAX && count <= UINT8_MAX);
    RuleTable table{{}, "id", id, id, BuilderMessages::common, count, sizeof(Record), fields, nullptr};
    for (std::size_t i = 0; i < length; ++i) {
        table.name[i] = name[i];
    }
    return table;
}

}  // namespace routerdb
