// What becomes of each column: two lists, which all that an upgrade does reads.
#pragma once

#include "upgrade_databases.h"
#include "upgrade_rules.h"

namespace ctl {

/// Makes the lists on the connection of the databases, as temporary tables.
///
/// `old_columns` has the columns of the old database: tbl, name, place, definition, pk. `columns` has those of the
/// target: the same, what they are without a value as `initial`, and with `old_` before it what is known of the column
/// that they get their values from; NULL where there is none.
/// @param rules  live as long as the databases
Status list_columns(UpgradeDatabases &databases, const UpgradeRules &rules);

/// Whether a schema has a table, in upper or lower case.
bool has_table(const UpgradeDatabases &databases, const char *schema, std::string_view table);

}  // namespace ctl
