// Files that SQLite opens: the n-th one fails.
#pragma once

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
