// A database's file as one descriptor of it shows it, whatever others do with the descriptor and the file.
#pragma once

#include <sys/types.h>

namespace routerdb {

/// What differs after a file has changed. Whoever writes through SQLite counts up; whoever writes without it may leave
/// the size, but not the times.
struct FileState {
    long marks[6] = {};  // size, seconds and their parts of both times, how often it was changed

    /// Its last change is so long ago that the next one has another time, however coarse the file system's times are.
    bool settled = false;
};

/// Whether nothing has changed between two looks at a file.
bool is_unchanged(const FileState &before, const FileState &now);

/// The numbers of the descriptors that a file is open for reading with, and for nothing else.
class ReadingDescriptors {
public:
    explicit ReadingDescriptors(const char *path);

    /// The one number that was not there before.
    /// @return -1 where there is none, or several
    int added_to(const ReadingDescriptors &before) const;

private:
    static constexpr int end = 256;  // one beyond it is not found

    bool has_[end] = {};
};

class OpenFile {
public:
    /// Finds the descriptor that a file has just been opened with.
    /// @return false where it cannot be told from others
    [[nodiscard]] bool find(const char *path, const ReadingDescriptors &before);

    /// Whether the descriptor still is that file, open for reading: programs close descriptors that are not theirs to
    /// close, and open others in their place.
    [[nodiscard]] bool is_open() const;

    /// Whether a path leads to the file, and this process may read it.
    [[nodiscard]] bool is_at(const char *path) const;

    /// Looks at the file.
    /// @return false for one that is no database, or in write-ahead logging
    [[nodiscard]] bool look(FileState &state) const;

private:
    int descriptor_ = 0;
    dev_t device_ = 0;
    ino_t number_ = 0;
};

}  // namespace routerdb
