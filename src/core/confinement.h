// What texts may do on a connection.
#pragma once

#include <sqlite3.h>

#include <cstdint>

namespace routerdb {

/// Whose texts run on a connection.
enum class Texts : std::uint8_t { own, of_callers };

/// Where the build profile says so: nothing edits the schema behind SQLite's back, and the functions and virtual tables
/// that the schema of a file calls are not trusted. The library's own texts read tables and never views, which a file
/// that somebody sent could have in their place. Callers' texts attach no file with a name.
void confine(sqlite3 *db, Texts texts);

}  // namespace routerdb
