#include "core/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <ctime>

namespace routerdb {

namespace {

/// Some file systems have times of whole seconds, or of two.
constexpr std::time_t coarsest_time = 3;

/// The part of a database's header that is looked at: how it is written and read, two reserved bytes that matter to
/// nobody here, three sizes that never change, and how often it was changed.
struct Header {
    static constexpr off_t place = 18;
    static constexpr unsigned char with_journal = 1;

    unsigned char write_version;
    unsigned char read_version;
    unsigned char others[4];
    unsigned char counter[4];
};

bool is_file(int descriptor, dev_t device, ino_t number) {
    struct stat file {};
    return fstat(descriptor, &file) == 0 && file.st_dev == device && file.st_ino == number;
}

/// SQLite opens files for reading alone, or for both.
bool may_write(int descriptor) {
    return (fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDWR;
}

}  // namespace

bool is_unchanged(const FileState &before, const FileState &now) {
    return before.settled && std::memcmp(before.marks, now.marks, sizeof(now.marks)) == 0;
}

ReadingDescriptors::ReadingDescriptors(const char *path) {
    struct stat file {};
    if (stat(path, &file) != 0) {
        return;
    }
    for (int number = 0; number < end; ++number) {
        has_[number] = is_file(number, file.st_dev, file.st_ino) && !may_write(number);
    }
}

int ReadingDescriptors::added_to(const ReadingDescriptors &before) const {
    int added = -1;
    for (int number = 0; number < end; ++number) {
        if (has_[number] && !before.has_[number]) {
            if (added != -1) {
                return -1;
            }
            added = number;
        }
    }
    return added;
}

bool OpenFile::find(const char *path, const ReadingDescriptors &before) {
    struct stat file {};
    descriptor_ = ReadingDescriptors(path).added_to(before);
    const bool found = fstat(descriptor_, &file) == 0;
    device_ = file.st_dev;
    number_ = file.st_ino;
    return found;
}

bool OpenFile::is_open() const {
    return is_file(descriptor_, device_, number_) && !may_write(descriptor_);
}

bool OpenFile::is_at(const char *path) const {
    struct stat file {};
    return stat(path, &file) == 0 && file.st_dev == device_ && file.st_ino == number_ &&
           faccessat(AT_FDCWD, path, R_OK, AT_EACCESS) == 0;
}

bool OpenFile::look(FileState &state) const {
    struct stat file {};
    Header header{};
    if (fstat(descriptor_, &file) != 0 ||
        pread(descriptor_, &header, sizeof(header), Header::place) != sizeof(header)) {
        return false;
    }
    unsigned counter = 0;
    for (const unsigned char byte : header.counter) {
        counter = counter << 8U | byte;
    }
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    state = {{static_cast<long>(file.st_size), file.st_mtim.tv_sec, file.st_mtim.tv_nsec, file.st_ctim.tv_sec,
              file.st_ctim.tv_nsec, static_cast<long>(counter)},
             now.tv_sec >= file.st_ctim.tv_sec + coarsest_time};
    return header.write_version == Header::with_journal && header.read_version == Header::with_journal;
}

}  // namespace routerdb
