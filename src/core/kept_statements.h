// The statements that stay prepared on a connection that is kept.
#pragma once

#include <sqlite3.h>

namespace routerdb {

/// Those that were used last, as many as a limit of memory allows: one of 160 columns takes some ten thousand bytes,
/// others a thousand, so that their number says little.
class KeptStatements {
public:
    /// Prepares a statement of the library's own, or takes one of its shape that is at hand, and gives it its values.
    /// @return the result code of SQLite
    int prepare(sqlite3 *db, const char *sql, sqlite3_stmt **statement);

    /// Takes a statement that is no longer needed, and finalises those that were used longest ago, so that all together
    /// take no more bytes than the limit.
    void put_back(sqlite3_stmt *statement, unsigned limit);

    /// Finalises all.
    void clear();

    /// Knows of none any more, and leaves them as they are.
    void forget() { count_ = 0; }

private:
    struct Entry {
        sqlite3_stmt *statement;
        unsigned memory : 31;
        unsigned lent : 1;
    };

    sqlite3_stmt *take(const char *sql);
    void shrink(unsigned limit);

    static constexpr unsigned capacity = 8;
    static constexpr unsigned most_lent = 4;  // of one call, at a time

    Entry entries_[capacity + most_lent]{};  // those used last come first
    unsigned count_ = 0;
};

}  // namespace routerdb
