#include "core/lock_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "build_profile.h"
#include "core/lock_holder.h"
#include "core/paths.h"

namespace routerdb {

namespace {

int set_open_file_lock(int fd, int cmd, short type) {
    const int result = set_record_lock(fd, cmd, type, 0, SEEK_SET, 0);
    if (result == 0 || errno != EINVAL) {
        return result;
    }
    return set_record_lock(fd, cmd == F_OFD_SETLKW ? F_SETLKW : F_SETLK, type, 0, SEEK_SET, 0);
}

/// A program that has locked the file by itself, with lock_reg(), waits for nobody here, and would wait for itself.
bool is_locked_by_process(int fd) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(fd, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK && lock.l_pid == getpid();
}

}  // namespace

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

int lock_open_file(int fd, short type) {
    return set_open_file_lock(fd, F_OFD_SETLK, type);
}

LockFile::LockFile(int handle)
    : fd_(handle), counted_(build_profile.locks_threads && handle >= 0 && lock_holder::knows(handle)) {}

void LockFile::count(bool locked) {
    if (build_profile.locks_threads && locked) {
        lock_holder::enter(fd_);
        counted_ = true;
    }
}

bool LockFile::open() {
    if (build_profile.locks_threads) {
        fd_ = lock_holder::join();
        counted_ = fd_ >= 0;
    }
    if (!counted_) {
        // The mode has no effect, because the file is never created here.
        fd_ = ::open(paths::lock_file, O_RDWR | (build_profile.locks_threads ? O_CLOEXEC : 0), 0644);
    }
    return fd_ >= 0;
}

void LockFile::lock() {
    if (build_profile.locks_threads && try_to_lock()) {
        return;
    }
    int result = -1;
    do {
        result = build_profile.locks_threads ? set_open_file_lock(fd_, F_OFD_SETLKW, F_WRLCK)
                                             : set_record_lock(fd_, F_SETLKW, F_WRLCK, 0, SEEK_SET, 0);
    } while (result == -1 && errno == EINTR);  // a signal of the program's is no reason to go on without the lock
    count(result == 0);
}

bool LockFile::try_to_lock() {
    if (counted_) {
        return true;
    }
    const bool locked = lock_open_file(fd_, F_WRLCK) == 0;
    count(locked);
    return locked || is_locked_by_process(fd_);
}

bool LockFile::unlock() {
    if (!build_profile.locks_threads) {
        set_record_lock(fd_, F_SETLK, F_UNLCK, 0, SEEK_SET, 0);
        return true;
    }
    const bool last = counted_ && lock_holder::leave();
    counted_ = false;
    if (last) {
        lock_holder::close_kept(fd_);  // as long as nobody else can enter
        lock_open_file(fd_, F_UNLCK);
    }
    return last;
}

void LockFile::unlock(int handle) {
    if (build_profile.locks_threads) {
        LockFile file(handle);
        file.unlock();
        file.hand_over();
    }
}

int LockFile::release() {
    if (fd_ < 0) {
        return 0;
    }
    const bool kept = build_profile.locks_threads && counted_ && lock_holder::keep(fd_);
    if (!unlock() && kept) {
        hand_over();
        return 0;
    }
    return close(hand_over());
}

int LockFile::hand_over() {
    const int handle = fd_;
    fd_ = -1;
    return handle;
}

}  // namespace routerdb
