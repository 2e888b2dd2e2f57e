// From a row to a rule record.
#pragma once

#include "core/row.h"
#include "rules/columns.h"

namespace routerdb {

/// Reads the columns of a row into a record that has been cleared. Columns that a control member rules out are not
/// read, and derived members are not filled.
void read_fields(const RuleTable &table, const Columns &columns, const Row &row, void *record);

}  // namespace routerdb
