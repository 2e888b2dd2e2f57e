#include "core/maintenance.h"

#include <fcntl.h>
#include <unistd.h>

#include "build_profile.h"
#include "core/call_errno.h"
#include "core/database_copy.h"
#include "core/journal.h"
#include "core/lock_file.h"
#include "core/paths.h"
#include "core/report.h"
#include "core/shell.h"

namespace routerdb {

namespace {

/// Has a file system write what it holds back, by way of a directory: closing a descriptor of the database itself would
/// drop the locks that SQLite has in this process.
void sync_file_system_of(const char *directory) {
    const int fd = open(directory, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0 || syncfs(fd) != 0) {
        sync();
    }
    if (fd >= 0) {
        close(fd);
    }
}

/// Runs `work` under the lock file. What that puts into `directory` is on disk before the lock goes.
/// @param work  returns 0 or a reason for errno
template <typename Work>
int maintain(const char *directory, Work work) {
    CallErrno call;
    LockFile lock_file;
    if (!lock_file.open()) {
        call.fail(errno);
        report({Stream::standard_error, Wording::cannot_open}, {paths::lock_file, 0, nullptr});
        return -1;
    }
    lock_file.lock();
    const int reason = work();
    if (reason != 0) {
        call.fail(reason);
        return -1;
    }
    sync_file_system_of(directory);
    return 0;
}

void copy(const char *from, const char *to) {
    run_in_shell(command_size, "cp -f %s %s", from, to);
}

bool can_be_read(const char *path) {
    return access(path, R_OK) == 0;
}

void make_backup_directory() {
    run_in_shell(command_size, "mkdir -p %s", paths::backup_directory);
}

// With commands nobody looks at what came of them.

int backup_by_commands() {
    settle_main_database();
    make_backup_directory();
    copy(paths::main_database, paths::backup_database);
    return 0;
}

int restore_by_commands() {
    settle_main_database();
    if (can_be_read(paths::backup_database)) {  // or the database stays, and needs its journal
        remove_main_journals();
    }
    copy(paths::backup_database, paths::main_database);
    return 0;
}

int reset_by_commands() {
    settle_main_database();
    remove_main_journals();
    run_in_shell(command_size, "rm -f %s; cp -f %s %s", paths::main_database, paths::factory_database,
                 paths::main_database);
    copy(paths::factory_database, paths::main_database);  // Deliberate: the factory copy is made twice.
    return 0;
}

}  // namespace

int backup_main_database() {
    return maintain(paths::backup_directory, [] {
        if (!build_profile.copies_through_sqlite) {
            return backup_by_commands();
        }
        make_backup_directory();
        return copy_to_file(paths::main_database, paths::backup_database);
    });
}

int restore_main_database() {
    return maintain(paths::main_directory, [] {
        return build_profile.copies_through_sqlite ? copy_to_main_database(paths::backup_database)
                                                   : restore_by_commands();
    });
}

int reset_main_database() {
    return maintain(paths::main_directory, [] {
        return build_profile.copies_through_sqlite ? copy_to_main_database(paths::factory_database)
                                                   : reset_by_commands();
    });
}

}  // namespace routerdb
