// What the service does with the main database itself.
#pragma once

#include <sqlite3.h>

namespace sqld {

/// The first row of a query under the database lock. Waits as long as the database is busy. Only a single statement
/// that reads is run.
class Query {
public:
    explicit Query(const char *sql);
    Query(const Query &) = delete;
    Query &operator=(const Query &) = delete;
    ~Query();

    /// Why it cannot be answered, as far as it has been run, without a word of the statement; null if it can.
    const char *failure() const { return failure_; }

    /// @return the first column of the first row; null without a row or for NULL
    const char *first_text();

private:
    int lock_;
    const char *failure_ = "the lock file cannot be opened";
    sqlite3 *db_ = nullptr;
    sqlite3_stmt *statement_ = nullptr;
};

/// Whether a text may be executed, as far as it can be told before it runs. One that fails may be.
bool may_execute(const char *sql, bool may_change_schema);

}  // namespace sqld
