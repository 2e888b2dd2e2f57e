// Backup, restore and reset of the main database.
#pragma once

namespace routerdb {

/// Copies the main database to the backup directory. @return 0, or -1 without the lock file
int backup_main_database();

/// Copies the backup over the main database. @return 0, or -1 without the lock file
int restore_main_database();

/// Copies the factory database over the main database. @return 0, or -1 without the lock file
int reset_main_database();

}  // namespace routerdb
