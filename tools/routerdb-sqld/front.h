// In front of the library's calls of SQLite: what a list builder does with the query of a request.
//
// The service has functions of its own under the names of sqlite3_prepare_v2 and sqlite3_step, which the library's
// calls reach. So a list is one connection, one statement and one walk, under the builder's lock: its query is looked
// at when the builder prepares it, and ended where it outgrows the room or fails.
#pragma once

#include <cstddef>

namespace sqld {

/// Watches the query of one request while it lives. There is one at a time.
class WatchedQuery {
public:
    /// @param rows  after so many and one more there are no further ones
    WatchedQuery(const char *sql, std::size_t rows);
    WatchedQuery(const WatchedQuery &) = delete;
    WatchedQuery &operator=(const WatchedQuery &) = delete;
    ~WatchedQuery();

    /// Why it cannot be answered, without a word of it; null if its rows are all that the builder wanted.
    const char *failure() const;
};

}  // namespace sqld
