// Copies of whole databases that are there wholly or not at all, whenever a process is killed or the power fails.
#pragma once

namespace routerdb {

/// Copies a sound database into a new file, which then takes the name of an older one.
/// @return 0, or a reason for errno, which has been logged; the older file then is as it was
int copy_to_file(const char *from, const char *to);

/// Makes the main database the same as another one that is sound and has its tables and columns, in one transaction
/// that readers wait for. A file that is no database is replaced by a new one.
/// @return 0, or a reason for errno, which has been logged; the main database then is as it was
int copy_to_main_database(const char *from);

}  // namespace routerdb
