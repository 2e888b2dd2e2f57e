#include "core/maintenance.h"

#include <sqlite3.h>

#include "core/lock_file.h"
#include "core/paths.h"
#include "core/report.h"
#include "core/shell.h"

namespace routerdb {

namespace {

/// Lets SQLite roll back what a killed writer left behind: its journal would destroy the file that is put in place,
/// or be missing from the copy that is made.
void settle_journal() {
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(paths::main_database, &db, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
        sqlite3_exec(db, "select count(*) from sqlite_master;", nullptr, nullptr, nullptr);
    }
    sqlite3_close(db);
}

/// Runs `commands` under the lock file.
template <typename Commands>
int maintain(Commands commands) {
    LockFile lock_file;
    if (!lock_file.open()) {
        report({Stream::standard_error, Wording::cannot_open}, {paths::lock_file, 0, nullptr});
        return -1;
    }
    lock_file.lock();
    settle_journal();
    commands();
    return 0;
}

void copy(const char *from, const char *to) {
    run_in_shell(command_size, "cp -f %s %s", from, to);
}

}  // namespace

int backup_main_database() {
    return maintain([] {
        run_in_shell(command_size, "mkdir -p %s", paths::backup_directory);
        copy(paths::main_database, paths::backup_database);
    });
}

int restore_main_database() {
    return maintain([] { copy(paths::backup_database, paths::main_database); });
}

int reset_main_database() {
    return maintain([] {
        run_in_shell(command_size, "rm -f %s; cp -f %s %s", paths::main_database, paths::factory_database,
                     paths::main_database);
        copy(paths::factory_database, paths::main_database);  // Deliberate: the factory copy is made twice.
    });
}

}  // namespace routerdb
