// Rows that may not be beside each other: two bindings of one device, or to one address.
#pragma once

#include "assignments.h"
#include "database.h"
#include "sql.h"

namespace ctl {

/// Whether no two rows of a table may have the same value in a column.
bool is_unique(const Table &table, const Column &column);

/// @param id  of the row that gets the values; 0 for a new one
/// @return done, or refused, which fail() has said
Status check_no_clash(const Database &database, const Assignments &values, std::int32_t id);

/// Adds the condition that there is no such row, with "AND" before it.
Sql &add_no_clash(Sql &sql, const Assignments &values, std::int32_t id);

}  // namespace ctl
