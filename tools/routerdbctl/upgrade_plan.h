// How the schema of the old database differs from that of the target.
#pragma once

#include "upgrade_databases.h"
#include "upgrade_lines.h"

namespace ctl {

/// Adds a line for each difference. The columns have been listed.
Status compare_schemas(const UpgradeDatabases &databases, UpgradeLines &lines);

}  // namespace ctl
