#include "permission.h"

#include <cstring>

namespace sqld {

namespace {

bool is_one_of(const char *name, const char *const *names, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (sqlite3_stricmp(name, names[i]) == 0) {
            return true;
        }
    }
    return false;
}

/// Settings of the connection alone.
bool is_harmless_pragma(const char *name) {
    constexpr const char *names[] = {"busy_timeout", "cache_size", "foreign_keys", "synchronous", "temp_store"};
    return is_one_of(name, names, sizeof(names) / sizeof(*names));
}

/// The tables that describe the others, which a change of the schema writes to.
bool describes_tables(const char *table) {
    constexpr const char *names[] = {"sqlite_master", "sqlite_schema", "sqlite_temp_master", "sqlite_temp_schema"};
    return is_one_of(table, names, sizeof(names) / sizeof(*names));
}

bool reads(int action) {
    return action == SQLITE_SELECT || action == SQLITE_READ || action == SQLITE_FUNCTION || action == SQLITE_RECURSIVE;
}

bool changes_rows(int action, const char *name) {
    switch (action) {
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE:
            return !describes_tables(name);
        case SQLITE_TRANSACTION:
        case SQLITE_SAVEPOINT:
        case SQLITE_ANALYZE:
        case SQLITE_REINDEX:
            return true;
        case SQLITE_PRAGMA:
            return is_harmless_pragma(name);
        default:
            return false;
    }
}

bool changes_schema(int action) {
    return action != SQLITE_ATTACH && action != SQLITE_DETACH && action != SQLITE_PRAGMA;
}

int permit_reading(void * /*unused*/, int action, const char * /*name*/, const char * /*detail*/,
                   const char * /*database*/, const char * /*trigger*/) {
    return reads(action) ? SQLITE_OK : SQLITE_DENY;
}

/// What is asked while a text to execute is looked at. SQLite does not always tell a refusal from a failure.
struct Execution {
    bool may_change_schema;
    bool refused = false;
};

int permit_changes(void *asked, int action, const char *name, const char * /*detail*/, const char * /*database*/,
                   const char * /*trigger*/) {
    Execution &execution = *static_cast<Execution *>(asked);
    const bool permitted =
        reads(action) || changes_rows(action, name) || (execution.may_change_schema && changes_schema(action));
    execution.refused = execution.refused || !permitted;
    return permitted ? SQLITE_OK : SQLITE_DENY;
}

/// Whether a text holds a statement; one that fails is one.
bool holds_a_statement(sqlite3 *db, const char *sql) {
    sqlite3_stmt *statement = nullptr;
    const bool failed = sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) != SQLITE_OK;
    const bool found = failed || statement != nullptr;
    sqlite3_finalize(statement);
    return found;
}

/// Whether a statement is a VACUUM that writes another file: the authorizer is not asked about that before it runs.
bool writes_a_file(sqlite3 *db, sqlite3_stmt *statement) {
    constexpr int opcode = 1;
    constexpr int file_register = 3;
    char *const sql = sqlite3_mprintf("explain %s", sqlite3_sql(statement));
    sqlite3_stmt *steps = nullptr;
    bool writes = sql == nullptr || sqlite3_prepare_v2(db, sql, -1, &steps, nullptr) != SQLITE_OK;
    while (!writes && sqlite3_step(steps) == SQLITE_ROW) {
        const auto *const name = reinterpret_cast<const char *>(sqlite3_column_text(steps, opcode));
        writes = name != nullptr && std::strcmp(name, "Vacuum") == 0 && sqlite3_column_int(steps, file_register) != 0;
    }
    sqlite3_finalize(steps);
    sqlite3_free(sql);
    return writes;
}

bool may_be_vacuum(sqlite3_stmt *statement) {
    return statement != nullptr && sqlite3_strlike("%vacuum%", sqlite3_sql(statement), '\0') == 0;
}

}  // namespace

const char *prepare_query(sqlite3 *db, const char *sql, sqlite3_stmt *&statement) {
    static constexpr char does_more[] = "it does more than read";
    sqlite3_set_authorizer(db, permit_reading, nullptr);  // for as long as the connection is there
    const char *rest = sql;
    const int code = sqlite3_prepare_v2(db, sql, -1, &statement, &rest);
    if (statement == nullptr) {
        return code == SQLITE_OK ? "it is empty" : code == SQLITE_AUTH ? does_more : sqlite3_errstr(code);
    }
    // A VACUUM is all that nobody is asked about.
    if (sqlite3_stmt_readonly(statement) == 0 || holds_a_statement(db, rest)) {
        sqlite3_finalize(statement);
        statement = nullptr;
        return does_more;
    }
    return nullptr;
}

bool permits_execution(sqlite3 *db, const char *sql, bool may_change_schema) {
    Execution execution{may_change_schema};
    sqlite3_set_authorizer(db, permit_changes, &execution);
    int code = SQLITE_OK;
    while (code == SQLITE_OK && !execution.refused && *sql != '\0') {
        sqlite3_stmt *statement = nullptr;
        code = sqlite3_prepare_v2(db, sql, -1, &statement, &sql);
        execution.refused = execution.refused || (may_be_vacuum(statement) && writes_a_file(db, statement));
        sqlite3_finalize(statement);
    }
    sqlite3_set_authorizer(db, nullptr, nullptr);
    return !execution.refused;
}

}  // namespace sqld
