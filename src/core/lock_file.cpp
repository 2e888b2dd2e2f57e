#include "core/lock_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "core/paths.h"

namespace routerdb {

int own_command(int cmd) {
#if defined(F_SETLK64) && F_SETLK64 != F_SETLK
    switch (cmd) {
        case F_GETLK64:
            return F_GETLK;
        case F_SETLK64:
            return F_SETLK;
        case F_SETLKW64:
            return F_SETLKW;
        default:
            break;
    }
#endif
    return cmd;
}

int set_record_lock(int fd, int cmd, int type, off_t offset, int whence, off_t len) {
    struct flock lock {};
    lock.l_type = static_cast<decltype(lock.l_type)>(type);
    lock.l_whence = static_cast<decltype(lock.l_whence)>(whence);
    lock.l_start = offset;
    lock.l_len = len;
    return fcntl(fd, cmd, &lock);
}

bool LockFile::open() {
    // The mode has no effect, because the file is never created here.
    fd_ = ::open(paths::lock_file, O_RDWR, 0644);
    return fd_ >= 0;
}

void LockFile::lock() {
    int result = -1;
    do {
        result = set_record_lock(fd_, F_SETLKW, F_WRLCK, 0, SEEK_SET, 0);
    } while (result == -1 && errno == EINTR);  // a signal of the program's is no reason to go on without the lock
}

int LockFile::release() {
    if (fd_ < 0) {
        return 0;
    }
    set_record_lock(fd_, F_SETLK, F_UNLCK, 0, SEEK_SET, 0);
    return close(hand_over());
}

int LockFile::hand_over() {
    const int handle = fd_;
    fd_ = -1;
    return handle;
}

}  // namespace routerdb
