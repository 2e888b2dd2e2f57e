// Carrying the rows over: the statements that fill the new database with what the old one has.
#pragma once

#include "sql.h"
#include "upgrade_databases.h"
#include "upgrade_lines.h"
#include "upgrade_rules.h"

namespace ctl {

/// Fills the new database. In a table that both have, the owner's rows take the place of the factory's, with their
/// numbers; one that is new keeps what the factory has put there.
/// @param lines       receives what becomes of values that have another meaning
/// @param statements  receives what was executed
/// @return done; refused when rows break what the new schema asks for; unreachable
Status carry_rows_over(UpgradeDatabases &databases, const UpgradeRules &rules, UpgradeLines &lines, Sql &statements);

}  // namespace ctl
