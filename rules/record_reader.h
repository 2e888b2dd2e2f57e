// From a row to a rule record.
#pragma once

#include <sqlite3.h>

#include "core/row.h"
#include "rules/rule_table.h"

namespace routerdb {

/// Reads a row into a record that has been cleared. Columns that the rule's control columns rule out are not read.
/// @param db  where the groups are looked up that the rule references
void read_record(const RuleTable &table, sqlite3 *db, const Row &row, void *record);

}  // namespace routerdb
