#include "database.h"

#include <unistd.h>

#include "core/paths.h"
#include "permission.h"
#include "routerdb.h"

namespace sqld {

namespace {

int wait_and_try_again(void * /*unused*/, int /*attempts*/) {
    constexpr useconds_t pause = 1000;
    usleep(pause);
    return 1;
}

bool open_main_database(sqlite3 *&db) {
    return sqlite3_open_v2(routerdb::paths::main_database, &db, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK &&
           sqlite3_busy_handler(db, wait_and_try_again, nullptr) == SQLITE_OK;
}

}  // namespace

Query::Query(const char *sql) : lock_(get_db_lock()) {
    if (lock_ < 0) {
        return;
    }
    if (!open_main_database(db_)) {
        failure_ = "the main database cannot be opened";
        return;
    }
    failure_ = prepare_query(db_, sql, statement_);
}

Query::~Query() {
    sqlite3_finalize(statement_);
    sqlite3_close(db_);
    if (lock_ >= 0) {
        free_db_lock(lock_);
    }
}

/// A row that cannot be read is not the end.
bool Query::next_row() {
    const int code = sqlite3_step(statement_);
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        failure_ = sqlite3_errstr(code);
    }
    return code == SQLITE_ROW;
}

std::size_t Query::count_rows() {
    std::size_t rows = 0;
    while (next_row()) {
        ++rows;
    }
    sqlite3_reset(statement_);  // the read lock goes, the lock file stays
    return rows;
}

const char *Query::first_text() {
    return next_row() ? reinterpret_cast<const char *>(sqlite3_column_text(statement_, 0)) : nullptr;
}

bool may_execute(const char *sql, bool may_change_schema) {
    sqlite3 *db = nullptr;
    const bool may = !open_main_database(db) || permits_execution(db, sql, may_change_schema);  // or it fails anyway
    sqlite3_close(db);
    return may;
}

}  // namespace sqld
