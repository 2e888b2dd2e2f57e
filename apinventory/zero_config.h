// Zero-configuration groups: new ones, and writing them.
#pragma once

#include "routerdb.h"

namespace routerdb {

/// Fills a cleared record with the defaults of a new group and the name of the next number.
void fill_with_defaults(DevInfo &group);

/// Writes a group; number 0 stands for a new one.
/// @return the number written to
int save_zero_config(const DevInfo &group, int id);

}  // namespace routerdb
