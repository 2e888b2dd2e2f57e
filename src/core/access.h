// One access to a database on the direct road: mutex, lock file, back-off, connection, in the order that callers of
// every process rely on, and released in reverse.
#pragma once

#include <cstdint>

#include "core/backoff.h"
#include "core/connection.h"
#include "core/lock_file.h"
#include "core/report.h"
#include "core/shared_connection.h"
#include "core/statement.h"

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
    /// @param shared  the connection of the call that this access is part of; null for one of its own
    explicit Access(const AccessProfile &profile, SharedConnection *shared = nullptr)
        : profile_(profile), loan_(shared) {}
    Access(const Access &) = delete;
    Access &operator=(const Access &) = delete;
    ~Access() { close_connection(); }

    /// Takes what the profile names and opens the database.
    /// @return false after the profile's message; the destructor releases what was taken
    [[nodiscard]] bool open();

    /// Prepares a statement on the connection.
    /// @return the result code of SQLite; that of open() when the database is lost()
    [[nodiscard]] int prepare(Statement &statement, const char *sql);

    /// Close and release now instead of at the end of the scope, in this order.
    /// @return the result code of SQLite; what closing the lock file returned, 0 when it was not open
    int close_connection() { return loan_.give_back(connection_); }
    int release_lock() { return lock_file_.release(); }

    /// What printing the message of a failed open() returned.
    int printed() const { return printed_; }

    /// Whether prepare() had to open the database again, and could not. It has been reported as by open().
    bool lost() const { return loan_.lost(); }

    /// The result code of SQLite for the last open().
    int code() const { return code_; }

    sqlite3 *db() const { return connection_.handle(); }
    Backoff &backoff() { return backoff_; }

private:
    bool take_guard();
    bool open_database();

    const AccessProfile &profile_;
    SharedConnection::Loan loan_;
    int printed_ = 0;
    int code_ = SQLITE_OK;
    Backoff backoff_;
    MutexHold mutex_;  // members are released from the last to the first
    LockFile lock_file_;
    Connection connection_;
};

}  // namespace routerdb
