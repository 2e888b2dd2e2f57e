// Who uses a group: rules that refer to it.
#pragma once

#include "database.h"
#include "sql.h"
#include "tables.h"

namespace ctl {

/// @param rows  a condition on the rows of a table
/// @return done when no rule uses one of them; refused, which fail() has said
Status check_unused(const Database &database, const Table &table, const char *rows);

/// Adds the condition that no rule uses a row, with "AND" before it.
Sql &add_unused(Sql &sql, const Table &table);

/// Calls visit(table, field) for each column that holds ids of a table's rows.
template <typename Visit>
void each_reference_to(const Table &groups, Visit visit) {
    for (const Table &table : tables) {
        for (unsigned i = 0; i < table.rules->field_count; ++i) {
            if (referenced_by(table.rules->fields[i]) == &groups) {
                visit(table, table.rules->fields[i]);
            }
        }
    }
}

}  // namespace ctl
