#include "holder.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <stdexcept>

#include "support/database.h"

namespace support {

namespace {

bool hold(LockKind kind, Visible visible) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    const int fd = open(lock_file, O_RDWR);
    if (visible == Visible::no) {
        // Another program would be visible again: this one stays, and looks like the test.
        prctl(PR_SET_DUMPABLE, 0);
    }
    // It waits, for the test takes the lock a moment each time it looks whether somebody has it.
    if (fd < 0 || fcntl(fd, kind == LockKind::of_process ? F_SETLKW : F_OFD_SETLKW, &lock) != 0) {
        return false;
    }
    if (visible == Visible::no) {
        pause();
    }
    return execl("/usr/bin/sleep", "sleep", "1000", nullptr) == 0;
}

/// Whether a process is the program that it is to become.
bool sleeps(pid_t process) {
    return file_content("/proc/" + std::to_string(process) + "/comm") == "sleep\n";
}

}  // namespace

Holder::Holder(LockKind kind, Visible visible) : process_([kind, visible] { return hold(kind, visible); }) {
    if (!eventually([&] { return !lock_file_is_free() && (visible == Visible::no || sleeps(process_.id())); })) {
        throw std::runtime_error("the lock file is not held");
    }
}

}  // namespace support
