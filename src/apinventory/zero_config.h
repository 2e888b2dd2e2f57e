// Zero-configuration groups: new ones, and writing them.
#pragma once

#include "core/shared_connection.h"
#include "routerdb.h"

namespace routerdb {

/// The number of the first group, read under the lock file: 0 without one, or when it is 0; -1 when it cannot be read.
/// Whether there are groups is told by it.
int first_group_number(SharedConnection &connection);

/// Fills a cleared record with the defaults of a new group and the name of the next number.
void fill_with_defaults(DevInfo &group);

/// Clears the record and reads the group of a number, or starts a new group for a text that is no number.
/// @return as read_zero_config; 0 for a new group
int read_or_start_zero_config(DevInfo &group, const char *id_text);

/// Writes a group; number 0 stands for a new one.
/// @return the number written to
int save_zero_config(const DevInfo &group, int id);

}  // namespace routerdb
