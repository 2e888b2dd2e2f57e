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

/// Locks or unlocks the whole file for the open file behind a descriptor, whichever process or thread has it, without
/// waiting. Old kernels have no such locks: there it is a record lock of the process.
/// @return 0, or -1 with errno
int lock_open_file(int fd, short type);

/// Owns a descriptor of the lock file; the lock goes with it. It keeps processes apart; where the build profile says so
/// threads as well, and a thread that has it joins it.
class LockFile {
public:
    LockFile() = default;
    LockFile(const LockFile &) = delete;
    LockFile &operator=(const LockFile &) = delete;
    ~LockFile() { release(); }

    /// Takes over a handle that hand_over() gave away.
    explicit LockFile(int handle);

    /// Opens the file, which must exist. Nothing is locked yet: the first delay is drawn between the two.
    [[nodiscard]] bool open();

    /// Waits for the write lock on the whole file, whatever signals arrive meanwhile.
    void lock();

    /// Takes it where nobody else has it.
    [[nodiscard]] bool try_to_lock();

    /// @return whether nobody of this process has it then
    bool unlock();

    /// Unlocks what a handle of the program's has locked here. A record lock is none of that.
    static void unlock(int handle);

    /// Unlocks and closes now instead of at the end of the scope.
    /// @return what closing returned; 0 when nothing was open
    int release();

    /// Gives the descriptor to the caller.
    int hand_over();

private:
    void count(bool locked);

    int fd_ = -1;
    bool counted_ = false;  // this thread has entered or joined with it
};

}  // namespace routerdb
