// The library's own statements as they are kept: each value, which stands between quotes, is a parameter.
#pragma once

#include <sqlite3.h>

#include "text/text.h"

namespace routerdb {

/// Whether a statement has a shape: what differs are values in the place of parameters.
bool is_shape_of(const char *shape, const char *sql);

/// "select * from DevInfo where Dev_Sn=?;" of "select * from DevInfo where Dev_Sn='7';"
void append_shape(Text &shape, const char *sql);

/// Gives the values of a statement to one that was prepared from its shape.
/// @param value  room for one of them
/// @return the result code of SQLite
int bind_values(sqlite3_stmt *statement, const char *sql, Text &value);

}  // namespace routerdb
