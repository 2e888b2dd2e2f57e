#include "core/lock_holder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>

#include "core/lock_file.h"

namespace routerdb::lock_holder {

namespace {

/// The thread's number and how many have entered or joined, in one word, so that both change at once. A thread's number
/// is below 2^22 on every Linux; it is no other one's in a child.
constexpr unsigned depth_bits = 10;
constexpr std::uint32_t depth_mask = (1U << depth_bits) - 1;

std::atomic<std::uint32_t> holder;
std::atomic<int> descriptor;
std::atomic<bool> kept;
std::atomic<pid_t> process;
std::atomic<std::uint32_t> locked_file;

std::uint32_t this_thread() {
    return static_cast<std::uint32_t>(syscall(SYS_gettid)) << depth_bits;
}

/// What tells the file behind a descriptor from others that are open: the file of the name may be another one by now.
/// @return 0 if there is none
std::uint32_t file_behind(int fd) {
    struct stat file {};
    return fstat(fd, &file) == 0 ? static_cast<std::uint32_t>(file.st_ino * 31 + file.st_dev) | 1U : 0;
}

/// Programs close descriptors that are not theirs to close, and open others in their place. Locking again what its open
/// file has locked changes nothing; what another one has locked is refused.
bool holds(int fd) {
    return file_behind(fd) == locked_file && lock_open_file(fd, F_WRLCK) == 0;
}

/// Counts one more beside those of a thread.
bool count_in(std::uint32_t thread) {
    std::uint32_t seen = holder.load();
    while ((seen & ~depth_mask) == thread && (seen & depth_mask) != depth_mask) {
        if (holder.compare_exchange_weak(seen, seen + 1)) {
            return true;
        }
    }
    return false;
}

}  // namespace

int join() {
    if (holder.load() == 0) {
        return -1;
    }
    const std::uint32_t thread = this_thread();
    if ((holder.load() & ~depth_mask) != thread) {
        return -1;
    }
    const int fd = fcntl(descriptor.load(), F_DUPFD_CLOEXEC, 0);
    if (fd >= 0 && holds(fd) && count_in(thread)) {
        return fd;
    }
    if (fd >= 0) {
        close(fd);
    }
    return -1;
}

void enter(int fd) {
    descriptor = fd;
    kept = false;
    locked_file = file_behind(fd);
    process = getpid();
    holder = this_thread() | 1U;
}

bool leave() {
    std::uint32_t seen = holder.load();
    std::uint32_t left = 0;
    do {
        left = (seen & depth_mask) > 1 ? seen - 1 : 0;
    } while (!holder.compare_exchange_weak(seen, left));
    return left == 0;
}

bool keep(int fd) {
    const bool keeps = descriptor.load() == fd;
    if (keeps) {
        kept = true;
    }
    return keeps;
}

void close_kept(int fd) {
    const int open = descriptor.load();
    if (kept.exchange(false) && open != fd) {
        close(open);
    }
}

bool knows(int fd) {
    return holder.load() != 0 && process == getpid() && holds(fd);
}

}  // namespace routerdb::lock_holder
