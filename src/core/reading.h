// A query whose rows the caller walks.
#pragma once

#include "core/access.h"
#include "core/statement.h"

namespace routerdb {

/// How a function reads rows, and what it says when it cannot.
struct ReadProfile {
    AccessProfile access;
    Message prepare_failure;
};

/// Opens a database, walks the rows of one query, and closes in the order statement, connection, lock file.
class Reading {
public:
    /// @param shared  the connection of the call that the reading is part of; null for one of its own
    explicit Reading(const ReadProfile &profile, SharedConnection *shared = nullptr)
        : profile_(profile), access_(profile.access, shared) {}

    /// Takes what the profile names and opens the database.
    /// @return false after the profile's message
    [[nodiscard]] bool open() { return access_.open(); }

    /// What printing the message of a failed open() returned.
    int printed() const { return access_.printed(); }

    /// The result code of SQLite for open().
    int code() const { return access_.code(); }

    /// @return false after the profile's message, or when the database is lost()
    [[nodiscard]] bool prepare(const char *sql);

    /// Whether prepare() had to open the database again, and could not: that counts as a failed open().
    bool lost() const { return access_.lost(); }

    /// @return whether there is a row; waits for a busy database
    [[nodiscard]] bool first_row() { return statement_.first_row(access_.backoff()); }

    /// @return whether there is another row
    [[nodiscard]] bool next_row() { return statement_.next_row(); }

    /// Whether the rows so far are all that there are.
    bool ended_well() const { return statement_.ended_well(); }

    Row row() const { return statement_.row(); }
    sqlite3_stmt *statement() const { return statement_.handle(); }
    sqlite3 *db() const { return access_.db(); }

    /// Ends the reading now instead of at the end of the scope.
    /// @return what closing the connection and what closing the lock file returned
    struct Closed {
        int connection;
        int lock_file;
    };
    Closed close();

private:
    const ReadProfile &profile_;
    Access access_;
    Statement statement_;
};

}  // namespace routerdb
