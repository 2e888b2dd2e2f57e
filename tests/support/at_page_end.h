// A record at the end of a page, before one that cannot be read: who reads past the record dies.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <new>

namespace support {

template <typename Record>
class AtPageEnd {
public:
    explicit AtPageEnd(const Record &record)
        : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
          readable_((sizeof(Record) + page_ - 1) / page_ * page_),
          pages_(mmap(nullptr, readable_ + page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
        if (pages_ == MAP_FAILED || mprotect(static_cast<char *>(pages_) + readable_, page_, PROT_NONE) != 0) {
            throw std::bad_alloc();
        }
        record_ = new (static_cast<char *>(pages_) + readable_ - sizeof(Record)) Record(record);
    }
    ~AtPageEnd() { munmap(pages_, readable_ + page_); }
    AtPageEnd(const AtPageEnd &) = delete;
    AtPageEnd &operator=(const AtPageEnd &) = delete;

    Record *get() { return record_; }

private:
    std::size_t page_;
    std::size_t readable_;
    void *pages_;
    Record *record_ = nullptr;
};

}  // namespace support
