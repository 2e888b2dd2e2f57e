#include "appcatalog/names.h"

#include <cstring>

#include "appcatalog/catalogue_text.h"
#include "core/statement.h"
#include "core/text.h"
#include "routerdb.h"

namespace routerdb {

namespace {

/// Appends a name and its "/" if both fit.
bool append_name(char *out, std::size_t &length, std::string_view name) {
    if (length + name.size() + 1 >= ROUTERDB_JOINED_NAMES) {
        return false;
    }
    std::memcpy(out + length, name.data(), name.size());
    length += name.size();
    out[length++] = '/';
    out[length] = '\0';
    return true;
}

}  // namespace

void join_names(const char *column, int class_id, char *out, sqlite3 *db) {
    StackText<80> sql;
    sql.append("select ").append(column).append(" from App_Info where Class_Id=").append_quoted(long{class_id});
    sql.append(";");
    Backoff backoff(FirstDelay::microseconds_50);
    Statement statement;
    const int code = statement.prepare(db, sql.c_str(), backoff);
    if (code != SQLITE_OK) {
        report({Stream::standard_output, Wording::webserver_error}, {nullptr, code, sqlite3_errmsg(db)});
        return;
    }
    bool more = statement.first_row(backoff);
    out[0] = '\0';
    std::size_t length = 0;
    while (more) {
        more = append_name(out, length, catalogue_text(statement.row(), 0)) && statement.next_row();
    }
}

}  // namespace routerdb
