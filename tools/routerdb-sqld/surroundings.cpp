#include "surroundings.h"

#include <sqlite3.h>
#include <syslog.h>
#include <unistd.h>

#include "core/paths.h"
#include "rules/tables.h"

namespace sqld {

namespace {

namespace paths = routerdb::paths;

constexpr int patience_ms = 1'000;

#define NAME(name_in_sql, Item, builder, name_for_people) routerdb::tables::name_in_sql::table.name,
constexpr const char *table_names[] = {ROUTERDB_RULE_TABLES(NAME)};
#undef NAME

/// @return whether it is there
bool look_for(const char *path) {
    const bool is_there = access(path, F_OK) == 0;
    if (!is_there) {
        syslog(LOG_WARNING, "%s is missing", path);
    }
    return is_there;
}

void look_for_table(sqlite3_stmt *search, const char *name) {
    sqlite3_bind_text(search, 1, name, -1, SQLITE_STATIC);
    if (sqlite3_step(search) == SQLITE_DONE) {
        syslog(LOG_WARNING, "the table %s is missing in %s", name, paths::main_database);
    }
    sqlite3_reset(search);
}

/// Without the rights to undo what a killed writer has left, nothing can be said.
void look_for_tables() {
    sqlite3 *db = nullptr;
    sqlite3_stmt *search = nullptr;
    sqlite3_open_v2(paths::main_database, &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_busy_timeout(db, patience_ms);
    const int code =
        sqlite3_prepare_v2(db, "select 1 from sqlite_master where type = 'table' and name = ?", -1, &search, nullptr);
    if (code == SQLITE_OK) {
        for (const char *const name : table_names) {
            look_for_table(search, name);
        }
    } else {
        syslog(LOG_WARNING, "%s cannot be read: %s", paths::main_database, sqlite3_errmsg(db));
    }
    sqlite3_finalize(search);
    sqlite3_close(db);
}

}  // namespace

void tell_what_is_missing() {
    look_for(paths::lock_file);
    look_for(paths::catalogue_database);
    if (look_for(paths::main_database)) {
        look_for_tables();
    }
}

}  // namespace sqld
