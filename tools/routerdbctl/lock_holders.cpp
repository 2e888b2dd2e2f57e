#include "lock_holders.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "core/paths.h"

namespace ctl {

namespace {

using routerdb::paths::lock_file;

/// A directory that is closed again.
class Directory {
public:
    explicit Directory(const char *path) : directory_(opendir(path)) {}
    Directory(const Directory &) = delete;
    Directory &operator=(const Directory &) = delete;
    ~Directory() {
        if (directory_ != nullptr) {
            closedir(directory_);
        }
    }

    bool is_open() const { return directory_ != nullptr; }

    /// The next name that is a number.
    /// @return -1 behind the last one
    long next_number() {
        for (const dirent *entry = next(); entry != nullptr; entry = next()) {
            char *end = nullptr;
            const long number = std::strtol(entry->d_name, &end, 10);
            if (end != entry->d_name && *end == '\0') {
                return number;
            }
        }
        return -1;
    }

private:
    const dirent *next() { return directory_ != nullptr ? readdir(directory_) : nullptr; }

    DIR *directory_;
};

/// Asks the kernel whether somebody would be in a writer's way.
/// @param process  receives whose record lock it is; 0 or less for a lock of an open file and of a hidden process
LockState ask(pid_t &process, int &reason) {
    const int fd = open(lock_file, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        reason = errno;
        return reason == ENOENT ? LockState::missing : LockState::closed;
    }
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    int result = fcntl(fd, F_OFD_GETLK, &lock);
    if (result != 0 && errno == EINVAL) {  // old kernels
        lock.l_type = F_WRLCK;
        result = fcntl(fd, F_GETLK, &lock);
    }
    reason = result != 0 ? errno : 0;
    close(fd);
    process = lock.l_pid;
    return result != 0 ? LockState::closed : lock.l_type == F_UNLCK ? LockState::free : LockState::held;
}

enum class Lock : std::uint8_t { none, of_process, of_open_file };

/// Finds out what a line of "fdinfo" says of locks, such as "lock:	1: OFDLCK  ADVISORY  WRITE -1 00:1f:3 0 EOF".
Lock lock_in(const char *text) {
    for (const char *line = std::strstr(text, "lock:"); line != nullptr; line = std::strstr(line + 1, "lock:")) {
        char kind[8] = "";
        if (std::sscanf(line, "lock: %*s %7s", kind) == 1) {
            if (std::strcmp(kind, "OFDLCK") == 0) {
                return Lock::of_open_file;
            }
            if (std::strcmp(kind, "POSIX") == 0) {
                return Lock::of_process;
            }
        }
    }
    return Lock::none;
}

/// The lock that a process has on the lock file by one of its descriptors. Only files that are locked are looked at:
/// others may lie where looking takes long.
Lock lock_by(pid_t process, long fd, const struct stat &wanted) {
    char path[64];
    char text[2048];
    std::snprintf(path, sizeof(path), "/proc/%d/fdinfo/%ld", static_cast<int>(process), fd);
    read_small_file(path, text, sizeof(text));
    const Lock lock = lock_in(text);
    struct stat found {};
    std::snprintf(path, sizeof(path), "/proc/%d/fd/%ld", static_cast<int>(process), fd);
    const bool is_that_file =
        lock != Lock::none && stat(path, &found) == 0 && found.st_dev == wanted.st_dev && found.st_ino == wanted.st_ino;
    return is_that_file ? lock : Lock::none;
}

void add(LockHolders &holders, pid_t process, Lock lock) {
    if (holders.count < LockHolders::most && read_process_facts(process, holders.holders[holders.count].process)) {
        holders.holders[holders.count++].is_of_open_file = lock == Lock::of_open_file;
    }
}

void look_at_process(LockHolders &holders, pid_t process, const struct stat &wanted) {
    char path[40];
    std::snprintf(path, sizeof(path), "/proc/%d/fdinfo", static_cast<int>(process));
    Directory descriptors(path);
    holders.are_some_hidden = holders.are_some_hidden || (!descriptors.is_open() && errno == EACCES);
    for (long fd = descriptors.next_number(); fd >= 0; fd = descriptors.next_number()) {
        const Lock lock = lock_by(process, fd, wanted);
        if (lock != Lock::none) {
            add(holders, process, lock);
            return;
        }
    }
}

LockHolders look_once() {
    LockHolders holders{};
    pid_t of_record_lock = 0;
    holders.state = ask(of_record_lock, holders.reason);
    struct stat wanted {};
    if (holders.state != LockState::held || stat(lock_file, &wanted) != 0) {
        return holders;
    }
    Directory processes("/proc");
    for (long process = processes.next_number(); process >= 0; process = processes.next_number()) {
        look_at_process(holders, static_cast<pid_t>(process), wanted);
    }
    if (holders.count == 0 && of_record_lock > 0) {
        add(holders, of_record_lock, Lock::of_process);
    }
    return holders;
}

}  // namespace

LockHolders LockHolders::find() {
    LockHolders holders = look_once();
    // Whoever has let go meanwhile is not found, and most hold it for a moment only.
    for (int again = 0; again < 4 && holders.state == LockState::held && holders.count == 0; ++again) {
        holders = look_once();
    }
    return holders;
}

const char *LockHolders::why_unknown() const {
    return are_some_hidden ? "held, by whom only root can see" : "held by a process that cannot be seen from here";
}

}  // namespace ctl
