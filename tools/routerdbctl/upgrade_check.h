// Whether the new database is one that the library's readers can use, and what they will not see of it.
#pragma once

#include "upgrade_databases.h"
#include "upgrade_lines.h"

namespace ctl {

/// Looks at the columns of the target: whether each column that readers count on is in its place.
/// @return done; refused after a line for each fault
Status check_places(const UpgradeDatabases &databases, RouterDatabase which);

/// Looks at the new database when the rows are in it: whether it is sound, whether lists have room for the rows,
/// whether rules have lost groups. Adds a line for what was so before, and for what readers cut.
/// @return done; refused after a line for each fault; unreachable
Status check_result(const UpgradeDatabases &databases, RouterDatabase which, UpgradeLines &lines);

}  // namespace ctl
