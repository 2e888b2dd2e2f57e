// Files of SQLite: opening the n-th one fails, or removing them does.
#pragma once

namespace support {

/// While it lives, all connections that are opened go through it.
class FailingFiles {
public:
    /// Opening the n-th file from now on, counted from 1, gives a result code of SQLite.
    FailingFiles(int n, int code);
    FailingFiles(const FailingFiles &) = delete;
    FailingFiles &operator=(const FailingFiles &) = delete;
    ~FailingFiles();

    /// Whether the failure has come up.
    static bool failed();
};

/// The same for removals: each of the next `times` gives an I/O error.
class FailingRemovals {
public:
    explicit FailingRemovals(int times);
    FailingRemovals(const FailingRemovals &) = delete;
    FailingRemovals &operator=(const FailingRemovals &) = delete;
    ~FailingRemovals();
};

}  // namespace support
