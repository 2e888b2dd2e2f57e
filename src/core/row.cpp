#include "core/row.h"

#include <climits>
#include <cstdlib>
#include <cstring>

#include "build_profile.h"
#include "text/text.h"

namespace routerdb {

const char *Row::text(int column, const char *null_text) const {
    const unsigned char *text = sqlite3_column_text(statement_, column);
    return text != nullptr ? reinterpret_cast<const char *>(text) : null_text;
}

bool Row::is_text(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_TEXT &&
           std::strlen(text(column)) == static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
}

bool Row::read_int(int column, int &number) const {
    if (sqlite3_column_type(statement_, column) != SQLITE_INTEGER) {
        return false;
    }
    const sqlite3_int64 value = sqlite3_column_int64(statement_, column);
    number = static_cast<int>(value);
    return value >= INT_MIN && value <= INT_MAX;
}

int Row::number(int column) const {
    // An integer that fits is what atoi would make of its text; anything else goes through the text, so that digits
    // beyond the range of int come out as atoi has them on this platform.
    int number = 0;
    if (build_profile.reads_integers && read_int(column, number)) {
        return number;
    }
    return std::atoi(text(column));  // NOLINT(cert-err34-c): callers rely on its reading of odd texts
}

unsigned long Row::unsigned_number(int column) const {
    return std::strtoul(text(column), nullptr, 10);
}

void Row::copy(int column, char *field, std::size_t width) const {
    copy_cut(text(column), field, width);
}

}  // namespace routerdb
