// The database lock file.
#pragma once

#include <sys/types.h>

namespace routerdb {

#ifdef __GLIBC__
// Programs pass offsets of the C library's default width, which _FILE_OFFSET_BITS=64 doubles on 32 bits.
static_assert(sizeof(off_t) == sizeof(__off_t), "callers pass a default off_t: build without _FILE_OFFSET_BITS=64");
#endif

/// The number that a locking command has here. In a 32-bit program that has a wider off_t through _FILE_OFFSET_BITS=64
/// it has another one, which would have fcntl read a wider record.
int own_command(int cmd);

/// fcntl with a record lock put together from the arguments.
int set_record_lock(int fd, int cmd, int type, off_t offset, int whence, off_t len);

/// Owns a descriptor of the lock file; the lock goes with it. It keeps processes apart, not threads.
class LockFile {
public:
    LockFile() = default;
    LockFile(const LockFile &) = delete;
    LockFile &operator=(const LockFile &) = delete;
    ~LockFile() { release(); }

    /// Takes over a handle that hand_over() gave away.
    explicit LockFile(int handle) : fd_(handle) {}

    /// Opens the file, which must exist. Nothing is locked yet: the first delay is drawn between the two.
    [[nodiscard]] bool open();

    /// Waits for the write lock on the whole file, whatever signals arrive meanwhile.
    void lock();

    /// Unlocks and closes now instead of at the end of the scope.
    /// @return what closing returned; 0 when nothing was open
    int release();

    /// Gives the descriptor to the caller.
    int hand_over();

private:
    int fd_ = -1;
};

}  // namespace routerdb
