#include "upgrade_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "routerdb.h"

namespace ctl {

namespace {

constexpr char overdue[] =
    "routerdbctl: the lock file was not free in time; nothing was changed (see \"routerdbctl lock\")\n";

void end_overdue(int) {
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, overdue, sizeof(overdue) - 1);
    _exit(static_cast<int>(Status::unreachable));
}

bool is_there(const char *path) {
    struct stat file {};
    return lstat(path, &file) == 0;
}

Status fail_with(const char *what, const char *path) {
    return fail(Status::unreachable, "cannot %s %s: %s", what, path, std::strerror(errno));
}

}  // namespace

bool is_same_file(const char *one, const char *other) {
    struct stat first {};
    struct stat second {};
    return stat(one, &first) == 0 && stat(other, &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

UpgradeLock::~UpgradeLock() {
    if (handle_ >= 0) {
        free_db_lock(handle_);
    }
}

/// The library waits without limit, whatever signals come.
Status UpgradeLock::acquire(unsigned seconds) {
    struct sigaction action {};
    action.sa_handler = end_overdue;
    sigaction(SIGALRM, &action, nullptr);
    std::fflush(stdout);  // the handler does not
    alarm(seconds);
    handle_ = get_db_lock();
    alarm(0);
    return handle_ >= 0 ? Status::done : fail(Status::unreachable, "cannot lock: %s", std::strerror(errno));
}

UpgradeFile::UpgradeFile(const char *live) {
    char resolved[PATH_MAX];
    const char *const path = realpath(live, resolved) != nullptr ? resolved : live;
    live_.add("%s", path);
    new_.add("%s.upgrade", path);
    directory_.add("%.*s", static_cast<int>(std::strrchr(path, '/') - path), path);
}

bool UpgradeFile::is_left_over() const {
    return is_there(path());
}

void UpgradeFile::remove() const {
    unlink(path());
}

Status UpgradeFile::sync_directory() const {
    const int fd = open(directory_.text(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool is_synced = fd >= 0 && fsync(fd) == 0;
    if (fd >= 0) {
        close(fd);
    }
    return is_synced ? Status::done : fail_with("sync", directory_.text());
}

/// Has the new file written to the disk. Nobody has it open but this.
Status UpgradeFile::finish_new(const char *like) const {
    struct stat file {};
    const int fd = open(path(), O_RDWR | O_CLOEXEC);
    if (fd < 0) {
        return fail_with("open", path());
    }
    const bool is_known = stat(live_.text(), &file) == 0 || stat(like, &file) == 0;
    const bool is_owned = is_known && fchown(fd, file.st_uid, file.st_gid) == 0;
    const bool is_finished = is_owned && fchmod(fd, file.st_mode & 07777) == 0 && fsync(fd) == 0;
    const Status status = is_finished ? Status::done : fail_with("write", path());
    close(fd);
    return status;
}

/// A second name for the old file: it is there at once, takes no room, and is never overwritten.
Status UpgradeFile::keep_old(Sql &kept) const {
    for (int number = 1; is_there(live_.text()); ++number) {
        Sql name;
        name.add("%s.before-%d", live_.text(), number);
        const bool is_kept = link(live_.text(), name.text()) == 0;
        if (!is_kept && errno != EEXIST) {
            return fail_with("keep the database as", name.text());
        }
        if (is_kept || is_same_file(live_.text(), name.text())) {
            kept.add("%s", name.text());
            return sync_directory();
        }
    }
    return Status::done;
}

Status UpgradeFile::put_in_place(const char *from, Sql &kept) const {
    Status status = finish_new(from);
    status = status != Status::done ? status : keep_old(kept);
    if (status != Status::done) {
        return status;
    }
    // Whoever reads the new file would take these for its own.
    for (const char *const suffix : {"-journal", "-wal", "-shm"}) {
        Sql name;
        unlink(name.add("%s%s", live_.text(), suffix).text());
    }
    if (std::rename(path(), live_.text()) != 0) {
        return fail_with("replace", live_.text());
    }
    return sync_directory() == Status::done ? Status::done : Status::unknown;
}

}  // namespace ctl
