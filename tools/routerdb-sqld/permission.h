// What requests may do.
#pragma once

#include <sqlite3.h>

namespace sqld {

/// Prepares a query: one statement that reads, and attaches nothing.
/// @param[out] statement  null unless it may run
/// @return why it may not, without a word of it, since it may hold a key; null if it may
const char *prepare_query(sqlite3 *db, const char *sql, sqlite3_stmt *&statement);

/// Looks at a text to execute, without running it: its statements change rows, and the schema only if that is allowed;
/// they write no other file, and set nothing but what the connection forgets. What SQLite cannot prepare may run: it
/// fails.
bool permits_execution(sqlite3 *db, const char *sql, bool may_change_schema);

}  // namespace sqld
