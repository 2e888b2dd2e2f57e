// What the service reads from the main database itself: scalars, and how many rows a query has.
#pragma once

#include <sqlite3.h>

#include <cstddef>

namespace sqld {

/// The first row of a query under the database lock, or the number of its rows. Waits as long as the database is
/// busy. Only statements that change nothing are run.
class Query {
public:
    explicit Query(const char *sql);
    Query(const Query &) = delete;
    Query &operator=(const Query &) = delete;
    ~Query();

    /// @return false after the reason went to the system log
    bool usable() const { return statement_ != nullptr; }

    /// Runs the query to its end.
    std::size_t count_rows();

    /// @return the first column of the first row; null without a row or for NULL
    const char *first_text();

private:
    int lock_;
    sqlite3 *db_ = nullptr;
    sqlite3_stmt *statement_ = nullptr;
};

}  // namespace sqld
