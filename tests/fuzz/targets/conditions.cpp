// Conditions of deletions.
#include <sqlite3.h>

#include "fuzz/fuzz.h"
#include "routerdb.h"

// Modern alone: in exact a condition is SQL, as the header says.
const char fuzz::what[] =
    "conditions of deletions: what is sent deletes rows of its table, and only those that it names";

namespace {

/// What a deletion is prepared for: to delete rows of its table, and to read its columns.
int permit(void * /*unused*/, int action, const char *table, const char * /*column*/, const char * /*database*/,
           const char * /*trigger*/) {
    return (action == SQLITE_DELETE || action == SQLITE_READ) && std::string(table) == "wifi0acl" ? SQLITE_OK
                                                                                                  : SQLITE_DENY;
}

sqlite3 *db = nullptr;

}  // namespace

/// In a row of nulls no column compares with a value: what finds it says something else.
void fuzz::prepare() {
    sqlite3_open(":memory:", &db);
    sqlite3_exec(db,
                 "create table wifi0acl(id int, name text, mac text, mark text, status int, rowid, oid, _rowid_);"
                 "insert into wifi0acl default values;",
                 nullptr, nullptr, nullptr);
    sqlite3_set_authorizer(db, permit, nullptr);
}

void fuzz::run(Input input) {
    const std::string text = input.take_rest();
    Argument condition(text.substr(0, text.find('\0')));
    DelAclItem(condition.text(), 0);
    for (const std::string &sql : statements()) {
        sqlite3_stmt *statement = nullptr;
        const char *rest = nullptr;
        const int code = sqlite3_prepare_v2(db, sql.c_str(), -1, &statement, &rest);
        const std::string shown = statement != nullptr ? sqlite3_sql(statement) : "";
        sqlite3_step(statement);
        sqlite3_finalize(statement);
        require(code != SQLITE_AUTH, "a condition that does more: " + sql);
        require(code != SQLITE_OK || (*rest == '\0' && shown == sql), "a condition that ends its statement: " + sql);
        require(sqlite3_total_changes(db) == 1, "a condition that finds every row: " + sql);
    }
}
