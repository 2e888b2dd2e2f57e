// Whether a database may take the place of another one.
#pragma once

#include <sqlite3.h>

#include "core/backoff.h"

namespace routerdb {

/// Whether SQLite says that a file is no database, rather than that it is busy, failing, or not to be had.
constexpr bool is_no_database(int code) {
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT;
}

inline constexpr char damaged[] = "it is damaged";

/// What was found.
struct Check {
    int code;           // SQLITE_OK when it was looked at
    const char *fault;  // null when it is fit
};

/// Takes a database out of write-ahead logging, which the router does not expect.
/// @return the result code of SQLite
int leave_write_ahead_log(sqlite3 *db, Backoff &backoff);

/// Looks whether a database is sound and has a table. An empty file is sound.
Check check_content(sqlite3 *db, Backoff &backoff);

/// Looks whether the database in `path` has every table of `db`, with each column in its place: readers count on
/// places. It may have further ones.
Check check_layout(sqlite3 *db, const char *path, Backoff &backoff);

}  // namespace routerdb
