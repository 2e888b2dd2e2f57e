#include "core/database_check.h"

#include <cstring>

#include "core/statement.h"
#include "text/text.h"

namespace routerdb {

namespace {

/// The first column of the first row.
struct Answer {
    int code;
    int number;
    bool is_ok;  // the text that pragmas check with
};

Answer ask(sqlite3 *db, const char *sql, Backoff &backoff) {
    Statement statement;
    if (!statement.prepare(db, sql, backoff, no_message) || !statement.next_row(backoff)) {
        return {statement.ended_well() ? SQLITE_OK : statement.code(), 0, false};
    }
    const Row row = statement.row();
    return {SQLITE_OK, row.number(0), std::strcmp(row.text(0, ""), "ok") == 0};
}

/// Columns of the live database that the other one does not have in their place. A view, an index and the tables that
/// SQLite keeps for itself have none.
constexpr char misplaced_columns[] =
    "select count(*) from main.sqlite_master as live, pragma_table_info(live.name, 'main') as wanted "
    "where live.type='table' and live.name not like 'sqlite\\_%' escape '\\' and not exists("
    "select 1 from pragma_table_info(live.name, 'source') as found "
    "where found.cid=wanted.cid and found.name=wanted.name collate nocase);";

}  // namespace

int leave_write_ahead_log(sqlite3 *db, Backoff &backoff) {
    return ask(db, "pragma journal_mode=delete;", backoff).code;
}

Check check_content(sqlite3 *db, Backoff &backoff) {
    const Answer sound = ask(db, "pragma quick_check(1);", backoff);
    if (sound.code != SQLITE_OK || !sound.is_ok) {
        return {sound.code, damaged};
    }
    const Answer tables =
        ask(db, "select count(*) from sqlite_master where type='table' and name not like 'sqlite\\_%' escape '\\';",
            backoff);
    return {tables.code, tables.number == 0 ? "it has no table" : nullptr};
}

Check check_layout(sqlite3 *db, const char *path, Backoff &backoff) {
    StackText<128> sql;
    sql.append("attach ").append_quoted(path, Quotes::doubled).append(" as source;");
    const Answer attached = ask(db, sql.c_str(), backoff);
    if (attached.code != SQLITE_OK) {
        return {attached.code, nullptr};
    }
    const Answer misplaced = ask(db, misplaced_columns, backoff);
    const Answer detached = ask(db, "detach source;", backoff);
    const int code = misplaced.code != SQLITE_OK ? misplaced.code : detached.code;
    return {code, misplaced.number != 0 ? "a column of the main database is missing, or elsewhere" : nullptr};
}

}  // namespace routerdb
