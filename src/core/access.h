// One access to a database on the direct road: mutex, lock file, back-off, connection, in the order that callers of
// every process rely on, and released in reverse.
#pragma once

#include <cstdint>

#include "core/backoff.h"
#include "core/connection.h"
#include "core/lock_file.h"
#include "core/report.h"

namespace routerdb {

enum class Guard : std::uint8_t { none, lock_file_if_there, lock_file, mutex_and_lock_file };

/// When the first delay is drawn: callers that put their own rand() or gettimeofday() in front see the difference.
enum class Draw : std::uint8_t { before_opening_lock_file, after_opening_lock_file };

enum class FailedHandle : std::uint8_t { closed, abandoned };

/// How a function reaches its database. The functions of the direct road differ in what stands here.
struct AccessProfile {
    Database database;
    Guard guard;
    FirstDelay first_delay;
    Draw draw;
    std::uint8_t scale;          // of the sleeps
    Stream busy;                 // told after each sleep
    Stream lock_failure;         // told when the lock file cannot be opened
    Message open_failure;        // told when the database cannot be opened
    FailedHandle failed_handle;  // what becomes of a connection that SQLite could not open
};

/// Owns db_mutex while it holds it.
class MutexHold {
public:
    MutexHold() = default;
    MutexHold(const MutexHold &) = delete;
    MutexHold &operator=(const MutexHold &) = delete;
    ~MutexHold();

    void take();

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

private:
    const AccessProfile &profile_;
    int printed_ = 0;
    int code_ = SQLITE_OK;
    Backoff backoff_;
    MutexHold mutex_;  // members are released from the last to the first
    LockFile lock_file_;
    Connection connection_;
};

}  // namespace routerdb
