#include "core/maintenance.h"

#include <fcntl.h>
#include <unistd.h>

#include "core/call_errno.h"
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

/// Runs `commands` under the lock file. What they put into `directory` is on disk before the lock goes.
template <typename Commands>
int maintain(const char *directory, Commands commands) {
    CallErrno call;
    LockFile lock_file;
    if (!lock_file.open()) {
        call.fail(errno);
        report({Stream::standard_error, Wording::cannot_open}, {paths::lock_file, 0, nullptr});
        return -1;
    }
    lock_file.lock();
    settle_main_database();
    commands();
    sync_file_system_of(directory);
    return 0;
}

void copy(const char *from, const char *to) {
    run_in_shell(command_size, "cp -f %s %s", from, to);
}

bool can_be_read(const char *path) {
    return access(path, R_OK) == 0;
}

}  // namespace

int backup_main_database() {
    return maintain(paths::backup_directory, [] {
        run_in_shell(command_size, "mkdir -p %s", paths::backup_directory);
        copy(paths::main_database, paths::backup_database);
    });
}

int restore_main_database() {
    return maintain(paths::main_directory, [] {
        if (can_be_read(paths::backup_database)) {  // or the database stays, and needs its journal
            remove_main_journals();
        }
        copy(paths::backup_database, paths::main_database);
    });
}

int reset_main_database() {
    return maintain(paths::main_directory, [] {
        remove_main_journals();
        run_in_shell(command_size, "rm -f %s; cp -f %s %s", paths::main_database, paths::factory_database,
                     paths::main_database);
        copy(paths::factory_database, paths::main_database);  // Deliberate: the factory copy is made twice.
    });
}

}  // namespace routerdb
