#include "list_space.h"

#include <sys/mman.h>
#include <syslog.h>
#include <unistd.h>

namespace sqld {

namespace {

constexpr std::size_t guard_bytes = std::size_t{64} * 1024;  // more than the longest record

std::size_t in_pages(std::size_t bytes) {
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return (bytes + page - 1) / page * page;
}

struct Space {
    char *end;
    std::size_t size;
};

Space space;

void give_back() {
    if (space.end != nullptr) {
        munmap(space.end - space.size, space.size + guard_bytes);
    }
    space = {};
}

bool take(std::size_t size) {
    void *const memory =
        mmap(nullptr, size + guard_bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        return false;
    }
    space = {static_cast<char *>(memory) + size, size};
    return mprotect(space.end, guard_bytes, PROT_NONE) == 0;
}

}  // namespace

void *list_space(std::size_t bytes) {
    if (bytes > space.size) {
        give_back();
        if (!take(in_pages(bytes))) {
            syslog(LOG_ERR, "no memory for a list of %zu bytes: %m", bytes);
            give_back();
            return nullptr;
        }
    }
    return space.end - bytes;
}

std::size_t list_space_size(std::size_t bytes) {
    return in_pages(bytes) + guard_bytes;
}

}  // namespace sqld
