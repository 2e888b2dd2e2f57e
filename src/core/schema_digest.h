// The schema of a database as one number.
#pragma once

#include <sqlite3.h>

#include <cstdint>

#include "core/backoff.h"

namespace routerdb {

/// Reads the schema of the file, whatever SQLite knows of it already. Names, root pages and texts go into the number:
/// what a connection makes of the schema follows from them. SQLite's own cookie counts changes, so that two files may
/// have the same one.
/// @return false where it cannot be read
[[nodiscard]] bool digest_schema(sqlite3 *db, Backoff &backoff, std::uint32_t &digest);

}  // namespace routerdb
