#include "fault/failing_files.h"

#include <sqlite3.h>

namespace {

sqlite3_vfs *real = nullptr;
sqlite3_vfs ours;  // connections that are left behind keep pointing to it
int left = 0;
int planned = SQLITE_OK;

int open_file(sqlite3_vfs *vfs, const char *path, sqlite3_file *file, int flags, int *out_flags) {
    if (left > 0 && --left == 0) {
        file->pMethods = nullptr;
        return planned;
    }
    return real->xOpen(vfs, path, file, flags, out_flags);
}

}  // namespace

FailingFiles::FailingFiles(int n, int code) {
    left = n;
    planned = code;
    real = sqlite3_vfs_find(nullptr);
    ours = *real;
    ours.zName = "failing";
    ours.xOpen = open_file;
    sqlite3_vfs_register(&ours, 1);
}

FailingFiles::~FailingFiles() {
    left = 0;
    sqlite3_vfs_unregister(&ours);
    sqlite3_vfs_register(real, 1);
}

bool FailingFiles::failed() {
    return left == 0;
}
