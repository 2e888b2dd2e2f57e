#include "front.h"

#include <dlfcn.h>
#include <sqlite3.h>

#include <cstring>

#include "permission.h"

namespace {

/// The query that is watched.
struct Watched {
    const char *sql;  // null for none
    std::size_t most_rows;
    std::size_t rows;
    sqlite3_stmt *statement;
    const char *failure;
    bool is_being_prepared;
};

Watched watched;

bool is_watched(const char *sql) {
    return watched.sql != nullptr && !watched.is_being_prepared && std::strcmp(sql, watched.sql) == 0;
}

/// Whether a statement is that of the query, which the library has prepared before, with values as parameters. It does
/// so with its own texts alone, so that there is nothing to look at.
bool is_kept_for_watched(sqlite3_stmt *statement) {
    if (watched.sql == nullptr || watched.statement != nullptr || watched.is_being_prepared) {
        return false;
    }
    char *const text = sqlite3_expanded_sql(statement);  // null for what SQLite prepares for itself
    const bool is_query = text != nullptr && std::strcmp(text, watched.sql) == 0;
    sqlite3_free(text);
    return is_query;
}

/// SQLite's own function of a name.
template <typename Function>
Function own(const char *name, Function &found) {
    if (found == nullptr) {
        found = reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
    }
    return found;
}

bool is_busy(int code) {
    return code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

/// What is busy is tried again by the builder.
int prepare_watched(sqlite3 *db, sqlite3_stmt **statement) {
    watched.is_being_prepared = true;
    *statement = nullptr;
    watched.failure = sqld::prepare_query(db, watched.sql, *statement);
    watched.is_being_prepared = false;
    watched.statement = *statement;
    if (sqlite3_db_readonly(db, "main") == 1) {
        sqlite3_set_authorizer(db, nullptr, nullptr);  // the library keeps it, and does more on it than queries may
    }
    if (watched.failure == nullptr) {
        return SQLITE_OK;
    }
    const int code = sqlite3_errcode(db) & 0xff;
    return is_busy(code) ? code : SQLITE_AUTH;
}

}  // namespace

// In front of the library's.
extern "C" {

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): names as everywhere here
int sqlite3_prepare_v2(sqlite3 *db, const char *sql, int size, sqlite3_stmt **statement, const char **rest) {
    static decltype(&sqlite3_prepare_v2) prepare = nullptr;
    return is_watched(sql) ? prepare_watched(db, statement)
                           : own("sqlite3_prepare_v2", prepare)(db, sql, size, statement, rest);
}

int sqlite3_step(sqlite3_stmt *statement) {
    static decltype(&sqlite3_step) step = nullptr;
    if (statement != nullptr && is_kept_for_watched(statement)) {
        watched.statement = statement;
    }
    const bool watches = statement != nullptr && statement == watched.statement;
    if (watches && watched.rows > watched.most_rows) {
        return SQLITE_DONE;
    }
    const int code = own("sqlite3_step", step)(statement);
    if (watches) {
        watched.rows += code == SQLITE_ROW ? 1 : 0;
        watched.failure = code == SQLITE_ROW || code == SQLITE_DONE ? nullptr : sqlite3_errstr(code);
    }
    return code;
}

}  // extern "C"

namespace sqld {

WatchedQuery::WatchedQuery(const char *sql, std::size_t rows) {
    watched = {sql, rows, 0, nullptr, "the lock file or the main database cannot be opened", false};
}

WatchedQuery::~WatchedQuery() {
    watched = {};
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): it is that of the one object that there can be
const char *WatchedQuery::failure() const {
    return watched.failure;
}

}  // namespace sqld
