// Statements that go through together or not at all.
#pragma once

#include "core/execute.h"
#include "core/retry.h"

namespace routerdb {

/// One attempt at a transaction, on a connection that was opened for it under the lock file. Nothing is said of a
/// failure: whoever uses it does the same in another way then. After a failure its statements do nothing.
class Transaction {
public:
    explicit Transaction(Access &access);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// Runs a statement.
    /// @return whether all has gone well so far, as for the others
    bool execute(SqlView sql);

    /// Counts the rows of a query, and reads column k of row k, both counted from 0, so that the last one stays.
    bool count(SqlView sql, unsigned &rows, unsigned long &number);

    /// Commits, or leaves the database as it was.
    /// @return the result code of SQLite
    int end();

private:
    bool went_well() const { return code_ == SQLITE_OK; }

    Access &access_;
    int code_ = SQLITE_OK;
};

/// Opens as the profile says, runs `body` inside a transaction, and closes. While the database is busy all of it is
/// tried again, from its beginning.
/// @return SQLITE_OK if what it did is there; otherwise nothing of it is
template <typename Body>
[[nodiscard]] int run_as_transaction(const ExecuteProfile &profile, Body body) {
    const CallErrno untold;  // whoever does it in another way then tells
    Access access(profile.access);
    if (!open_as(access, profile)) {
        return SQLITE_CANTOPEN;
    }
    sqlite3 *const db = access.db();
    return retry_while_busy(access.backoff(), db, [&] {
        Transaction transaction(access);
        body(transaction);
        return transaction.end();
    });
}

}  // namespace routerdb
