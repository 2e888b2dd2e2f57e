// One access to a database on the direct road: mutex, lock file, back-off, connection, in the order that callers of
// every process rely on, and released in reverse.
#pragma once

#include "core/access_profile.h"
#include "core/call_errno.h"
#include "core/lock_file.h"

namespace routerdb {

/// Owns db_mutex while it holds it.
class MutexHold {
public:
    MutexHold() = default;
    MutexHold(const MutexHold &) = delete;
    MutexHold &operator=(const MutexHold &) = delete;
    ~MutexHold() { release(); }

    void take();
    [[nodiscard]] bool try_to_take();
    void release();

private:
    bool taken_ = false;
};

class Access {
public:
    explicit Access(const AccessProfile &profile) : profile_(profile) {}
    Access(const Access &) = delete;
    Access &operator=(const Access &) = delete;

    /// Takes what the profile names and opens the database.
    /// @return false after the profile's message; the destructor releases what was taken
    [[nodiscard]] bool open() { return take_guard() && open_database(); }

    /// The two halves of it.
    [[nodiscard]] bool take_guard();
    [[nodiscard]] bool open_database();

    /// Whether a database is open.
    bool is_open() const { return code_ == SQLITE_OK && db() != nullptr; }

    /// Close and release now instead of at the end of the scope, in this order.
    /// @return the result code of SQLite; what closing the lock file returned, 0 when it was not open
    int close_connection() { return connection_.close(); }
    int release_lock() { return lock_file_.release(); }

    /// What printing the message of a failed open() returned.
    int printed() const { return printed_; }

    /// The result code of SQLite for the last open().
    int code() const { return code_; }

    Connection &connection() { return connection_; }
    sqlite3 *db() const { return connection_.handle(); }
    Backoff &backoff() { return backoff_; }

    /// Whoever uses the access says here that it was in vain.
    CallErrno &call() { return call_; }

private:
    void lock();

    CallErrno call_;  // outlives all that is released
    const AccessProfile &profile_;
    int printed_ = 0;
    int code_ = SQLITE_OK;
    Backoff backoff_;
    MutexHold mutex_;  // members are released from the last to the first
    LockFile lock_file_;
    Connection connection_;
};

}  // namespace routerdb
