// The applications of a class as one text.
#pragma once

#include <sqlite3.h>

namespace routerdb {

/// Joins a column of the applications of a class, each value with a "/" behind it.
/// @param column  "Name", "Name_En" or "Features"
/// @param out     ROUTERDB_JOINED_NAMES bytes; untouched when the query cannot be prepared
void join_names(const char *column, int class_id, char *out, sqlite3 *db);

}  // namespace routerdb
