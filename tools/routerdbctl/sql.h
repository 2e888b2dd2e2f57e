// Texts of SQL, which grow as they are put together.
#pragma once

#include <sqlite3.h>

#include <string_view>

namespace ctl {

/// A statement or several. SQLite puts values and names between quotes: "%Q" is a value, "%w" a name between "\"".
class Sql {
public:
    Sql() : text_(sqlite3_str_new(nullptr)) {}
    Sql(const Sql &) = delete;
    Sql &operator=(const Sql &) = delete;
    ~Sql() { sqlite3_free(sqlite3_str_finish(text_)); }

    /// @param format  as sqlite3_mprintf() has it
    Sql &add(const char *format, ...);

    /// A value as it stands in a row, such that SQLite reads the same one.
    Sql &add_value(sqlite3_value *value);

    /// The text; empty without memory, which is no statement at all.
    const char *text() const;

    bool is_empty() const { return sqlite3_str_length(text_) == 0; }

private:
    sqlite3_str *text_;
};

}  // namespace ctl
