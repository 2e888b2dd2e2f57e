// A query whose rows the caller walks.
#pragma once

#include "core/access.h"
#include "core/shared_connection.h"
#include "core/sql_view.h"
#include "core/statement.h"

namespace routerdb {

/// What came of starting a reading. What the profile says to a failure has been said.
enum class Start : std::uint8_t { not_opened, not_prepared, ready };

/// Opens a database, walks the rows of one query, and closes in the order statement, connection, lock file.
class Reading {
public:
    /// @param shared  the connection of the call that the reading is part of; null for one of its own
    explicit Reading(const ReadProfile &profile, SharedConnection *shared = nullptr);
    Reading(const Reading &) = delete;
    Reading &operator=(const Reading &) = delete;
    ~Reading();

    /// Takes what the profile names, opens the database and prepares a query. For a text that memory ran out for
    /// nothing is opened.
    [[nodiscard]] Start start(SqlView sql);

    /// Steps to the next row, which for a query that has just been started is the first.
    /// @return whether there is one
    [[nodiscard]] bool next_row();

    /// Whether the rows so far are all that there are.
    bool ended_well() const { return statement_.ended_well(); }

    Row row() const { return statement_.row(); }
    sqlite3_stmt *statement() const { return statement_.handle(); }
    sqlite3 *db() const { return access_.db(); }

    /// What errno tells of this reading.
    CallErrno &call() { return access_.call(); }

    /// Of a database that could not be opened: what printing the message returned, and the result code of SQLite.
    int printed() const { return access_.printed(); }
    int code() const { return access_.code(); }

    /// Ends the reading now instead of at the end of the scope.
    /// @return what closing the connection and what closing the lock file returned
    struct Closed {
        int connection;
        int lock_file;
    };
    Closed close();

private:
    /// Null where each reading has a connection of its own.
    SharedConnection *shared() const { return build_profile.shares_connection ? shared_ : nullptr; }

    bool borrow(SqlView sql);
    bool start_on_borrowed(SqlView sql);
    bool start_pinned(const char *sql);
    bool start_silently(const char *sql);

    const ReadProfile &profile_;
    SharedConnection *shared_;
    Access access_;
    Statement statement_;
    bool ahead_ = false;  // the first step has been taken
};

}  // namespace routerdb
