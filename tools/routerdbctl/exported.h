// What an export is: its format, the schema that it is of, its rows as statements, and how it is read again.
#pragma once

#include <cstdint>

#include "database.h"
#include "sql.h"
#include "tables.h"

namespace ctl {

inline constexpr int export_format = 1;

/// Where the rows of a file are put, beside the main database: "main" has what is, "other" what the file has.
inline constexpr char other[] = "other";

/// A number that another schema hardly has.
std::uint64_t digest_of_schema(const Database &database);

/// Adds a statement for each row, such that it is the same again.
Status add_rows(Sql &sql, const Database &database, const char *schema, const Table &table);

/// Puts the rows of an export beside the main database: a table in "other" for each table that the file has.
/// @param any_value  takes values that a field is not made for, too
/// @return done; refused after a line for each fault; or what fail() has said
Status read_export(Database &database, const char *path, bool any_value);

}  // namespace ctl
