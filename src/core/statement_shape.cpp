#include "core/statement_shape.h"

#include <cstring>

namespace routerdb {

namespace {

/// The end of the value that stands at a place, which is the next quotation mark that is no doubled one; null where
/// none stands.
const char *end_of_value(const char *text) {
    const char *end = *text == '\'' ? std::strchr(text + 1, '\'') : nullptr;
    while (end != nullptr && end[1] == '\'') {
        end = std::strchr(end + 2, '\'');
    }
    return end;
}

/// Appends a value as it was before its quotation marks were doubled.
void append_undoubled(Text &text, const char *first, const char *end) {
    for (const char *letter = first; letter != end; ++letter) {
        text.append({letter, 1});
        letter += *letter == '\'' ? 1 : 0;
    }
}

}  // namespace

bool is_shape_of(const char *shape, const char *sql) {
    for (; *sql != '\0'; ++sql, ++shape) {
        const char *const end = *shape == '?' ? end_of_value(sql) : nullptr;
        if (end != nullptr) {
            sql = end;
        } else if (*shape != *sql) {
            return false;
        }
    }
    return *shape == '\0';
}

void append_shape(Text &shape, const char *sql) {
    for (; *sql != '\0'; ++sql) {
        const char *const end = end_of_value(sql);
        shape.append({end != nullptr ? "?" : sql, 1});
        sql = end != nullptr ? end : sql;
    }
}

int bind_values(sqlite3_stmt *statement, const char *sql, Text &value) {
    int code = SQLITE_OK;
    for (int index = 1; *sql != '\0' && code == SQLITE_OK; ++sql) {
        if (const char *const end = end_of_value(sql)) {
            value.clear();
            append_undoubled(value, sql + 1, end);
            code = value.complete() ? sqlite3_bind_text(statement, index++, value.c_str(), -1, SQLITE_TRANSIENT)
                                    : SQLITE_NOMEM;
            sql = end;
        }
    }
    return code;
}

}  // namespace routerdb
