// A prepared statement and its owner.
#pragma once

#include <sqlite3.h>

#include "core/backoff.h"
#include "core/report.h"
#include "core/row.h"

namespace routerdb {

/// Owns one statement on a connection that outlives it, and finalises it, unless it stays with a connection that is
/// kept.
class Statement {
public:
    Statement() = default;
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    ~Statement() { finalize(); }

    /// Prepares the first statement of a text, retrying while the database is busy. A text that holds no statement
    /// prepares to nothing and has no rows.
    /// @return false after the message
    [[nodiscard]] bool prepare(sqlite3 *db, const char *sql, Backoff &backoff, Message failure);

    /// Binds a text, which stays the caller's, to the one parameter.
    [[nodiscard]] bool bind(const char *text) {
        return sqlite3_bind_text(statement_, 1, text, -1, SQLITE_STATIC) == SQLITE_OK;
    }

    /// Ends the rows, so that the statement can be bound and stepped again.
    void reset() {
        sqlite3_reset(statement_);
        code_ = SQLITE_OK;
    }

    /// Steps on. The step to the first row is tried again while the database is busy: nothing has been delivered yet,
    /// and a reader beside a writer would come back empty otherwise. Afterwards any result other than a row ends the
    /// rows.
    /// @return whether there is a row
    bool next_row(Backoff &backoff);

    bool has_row() const { return code_ == SQLITE_ROW; }

    /// Whether the statement so far gave all that there is: a row, or the end of the rows.
    bool ended_well() const { return code_ == SQLITE_OK || code_ == SQLITE_ROW || code_ == SQLITE_DONE; }

    /// The result code of SQLite for preparing, or for the last step.
    int code() const { return code_; }

    /// Finalises now instead of at the end of the scope.
    void finalize();

    Row row() const { return Row(statement_); }
    sqlite3_stmt *handle() const { return statement_; }

private:
    sqlite3 *db_ = nullptr;
    sqlite3_stmt *statement_ = nullptr;
    int code_ = SQLITE_OK;
};

}  // namespace routerdb
