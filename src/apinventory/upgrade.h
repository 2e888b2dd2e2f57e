// Firmware upgrades of access points.
#pragma once

#include "routerdb.h"

namespace routerdb {

/// Deletes the entries of a firmware; one without a name does nothing.
void delete_upgrade(const ApDevUpgradeInfo *info);

/// Releases the records of a list and what they own.
void free_upgrades(ApDevUpgradeList &list);

}  // namespace routerdb
