#include "sql.h"

#include <cstdarg>
#include <cstring>

namespace ctl {

namespace {

void add_bytes(sqlite3_str *text, const unsigned char *bytes, int count) {
    sqlite3_str_appendall(text, "x'");
    for (int i = 0; i < count; ++i) {
        sqlite3_str_appendf(text, "%02x", bytes[i]);
    }
    sqlite3_str_appendall(text, "'");
}

}  // namespace

Sql &Sql::add(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    sqlite3_str_vappendf(text_, format, arguments);
    va_end(arguments);
    return *this;
}

Sql &Sql::add_value(sqlite3_value *value) {
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return add("%lld", sqlite3_value_int64(value));
        case SQLITE_FLOAT:
            return add("%!.17g", sqlite3_value_double(value));
        case SQLITE_NULL:
            return add("NULL");
        case SQLITE_BLOB:
            add_bytes(text_, static_cast<const unsigned char *>(sqlite3_value_blob(value)), sqlite3_value_bytes(value));
            return *this;
        default:
            break;
    }
    const unsigned char *const text = sqlite3_value_text(value);
    const int size = sqlite3_value_bytes(value);
    if (std::memchr(text, '\0', static_cast<std::size_t>(size)) == nullptr) {
        return add("%Q", text);
    }
    // A text ends at its first NUL in a statement, but not in a row.
    add("CAST(");
    add_bytes(text_, text, size);
    return add(" AS TEXT)");
}

const char *Sql::text() const {
    const char *const text = sqlite3_str_errcode(text_) == SQLITE_OK ? sqlite3_str_value(text_) : nullptr;
    return text != nullptr ? text : "";
}

}  // namespace ctl
