// Backup, restore and reset of the main database.
#pragma once

namespace routerdb {

// Each returns 0; -1 without the lock file, or, where the build profile copies through SQLite, when the copy was not
// made.

/// Copies the main database to the backup directory.
int backup_main_database();

/// Copies the backup over the main database.
int restore_main_database();

/// Copies the factory database over the main database.
int reset_main_database();

}  // namespace routerdb
