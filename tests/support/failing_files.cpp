#include "support/failing_files.h"

#include <sqlite3.h>

namespace support {

namespace {

sqlite3_vfs *real = nullptr;
sqlite3_vfs ours;  // connections that are left behind keep pointing to it
int opens_left = 0;
int planned = SQLITE_OK;
int removals_left = 0;

int open_file(sqlite3_vfs *vfs, const char *path, sqlite3_file *file, int flags, int *out_flags) {
    if (opens_left > 0 && --opens_left == 0) {
        file->pMethods = nullptr;
        return planned;
    }
    return real->xOpen(vfs, path, file, flags, out_flags);
}

int remove_file(sqlite3_vfs *vfs, const char *path, int sync_directory) {
    if (removals_left > 0) {
        --removals_left;
        return SQLITE_IOERR_DELETE;
    }
    return real->xDelete(vfs, path, sync_directory);
}

void put_in_front() {
    real = sqlite3_vfs_find(nullptr);
    ours = *real;
    ours.zName = "failing";
    ours.xOpen = open_file;
    ours.xDelete = remove_file;
    sqlite3_vfs_register(&ours, 1);
}

void take_away() {
    sqlite3_vfs_unregister(&ours);
    sqlite3_vfs_register(real, 1);
}

}  // namespace

FailingFiles::FailingFiles(int n, int code) {
    opens_left = n;
    planned = code;
    put_in_front();
}

FailingFiles::~FailingFiles() {
    opens_left = 0;
    take_away();
}

bool FailingFiles::failed() {
    return opens_left == 0;
}

FailingRemovals::FailingRemovals(int times) {
    removals_left = times;
    put_in_front();
}

FailingRemovals::~FailingRemovals() {
    removals_left = 0;
    take_away();
}

}  // namespace support
