// The rule tables as people name them.
#pragma once

#include <cstddef>
#include <string_view>

#include "rules/tables.h"
#include "status.h"

namespace ctl {

using routerdb::Field;
using routerdb::Kind;
using routerdb::RuleTable;

struct Table {
    const RuleTable *rules;
    const char *name;    // for people
    const char *record;  // of the header

    /// Its name in SQL.
    const char *in_sql() const { return rules->name; }
};

#define ROW(name_in_sql, Item, builder, name_for_people) \
    {&routerdb::tables::name_in_sql::table, name_for_people, #Item},
inline constexpr Table tables[] = {ROUTERDB_RULE_TABLES(ROW)};
#undef ROW

/// A column: that of a field, or one of the seven of weekdays.
struct Column {
    char name[sizeof(Field::column) + 2];
    const Field *field;
};

/// The columns of a table, in the order of its fields; the id is not among them.
class Columns {
public:
    explicit Columns(const Table &table);

    const Column *begin() const { return columns_; }
    const Column *end() const { return columns_ + count_; }

    /// @return null if there is none of that name
    const Column *find(std::string_view name) const;

private:
    unsigned count_ = 0;
    Column columns_[routerdb::most_columns];
};

/// Finds a table by one of its three names, or by their first letters where those are no other's.
/// @return done, or what fail() has said
Status find_table(const char *name, const Table *&table);

/// The table whose rows a column has the ids of; null for any other column.
const Table *referenced_by(const Field &field);

/// The column that says whether a reference counts, with the value ROUTERDB_TIME_GROUP or ROUTERDB_IP_GROUP.
const Field &control_of(const Table &table, const Field &field);

}  // namespace ctl
