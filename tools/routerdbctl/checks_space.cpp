// Room on the disks for what changes and backups write.
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "checks.h"
#include "core/paths.h"

namespace ctl {

namespace {

namespace paths = routerdb::paths;

long long size_of_main_database() {
    struct stat file {};
    return stat(paths::main_database, &file) == 0 ? static_cast<long long>(file.st_size) : 0;
}

/// Looks at the disk that a directory is on, or will be when it is made.
void look_at_disk(Report &report, const char *directory, long long needed) {
    char place[sizeof(paths::backup_directory) + sizeof(paths::main_directory)];
    std::snprintf(place, sizeof(place), "%s", directory);
    struct statvfs disk {};
    int result = statvfs(place, &disk);
    while (result != 0 && errno == ENOENT && std::strrchr(place, '/') != place) {
        *std::strrchr(place, '/') = '\0';
        result = statvfs(place, &disk);
    }
    const long long free = static_cast<long long>(disk.f_bavail) * static_cast<long long>(disk.f_frsize);
    if (result != 0) {
        report.fail("look at the disk", "%s: %s", place, std::strerror(errno));
    } else if ((disk.f_flag & ST_RDONLY) != 0) {
        report.fail("mount it such that it can be written", "the disk of %s is read-only", directory);
    } else if (free < needed) {
        report.fail("make room there", "the disk of %s has %lld KiB free, and the database has %lld", directory,
                    free / 1024, needed / 1024);
    } else if (free < 2 * needed) {
        report.warn("make room there", "the disk of %s has %lld KiB free, less than twice the database", directory,
                    free / 1024);
    } else {
        report.ok("%s: %lld KiB free", directory, free / 1024);
    }
}

}  // namespace

void look_at_space(Examination &examination) {
    const long long needed = size_of_main_database();
    look_at_disk(examination.report, paths::main_directory, needed);
    look_at_disk(examination.report, paths::backup_directory, needed);
}

}  // namespace ctl
