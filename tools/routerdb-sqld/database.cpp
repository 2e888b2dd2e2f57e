#include "database.h"

#include <syslog.h>
#include <unistd.h>

#include "core/paths.h"
#include "routerdb.h"

namespace sqld {

namespace {

int wait_and_try_again(void * /*unused*/, int /*attempts*/) {
    constexpr useconds_t pause = 1000;
    usleep(pause);
    return 1;
}

}  // namespace

Query::Query(const char *sql) : lock_(get_db_lock()) {
    if (lock_ < 0) {
        return;  // the library has said so
    }
    if (sqlite3_open_v2(routerdb::paths::main_database, &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        syslog(LOG_ERR, "cannot open the main database: %s", sqlite3_errmsg(db_));
        return;
    }
    sqlite3_busy_handler(db_, wait_and_try_again, nullptr);
    if (sqlite3_prepare_v2(db_, sql, -1, &statement_, nullptr) != SQLITE_OK) {
        syslog(LOG_ERR, "cannot prepare \"%s\": %s", sql, sqlite3_errmsg(db_));
    } else if (statement_ != nullptr && sqlite3_stmt_readonly(statement_) == 0) {
        syslog(LOG_ERR, "not a query: \"%s\"", sql);
        sqlite3_finalize(statement_);
        statement_ = nullptr;
    }
}

Query::~Query() {
    sqlite3_finalize(statement_);
    sqlite3_close(db_);
    if (lock_ >= 0) {
        free_db_lock(lock_);
    }
}

std::size_t Query::count_rows() {
    std::size_t rows = 0;
    while (sqlite3_step(statement_) == SQLITE_ROW) {
        ++rows;
    }
    sqlite3_reset(statement_);  // the read lock goes, the lock file stays
    return rows;
}

const char *Query::first_text() {
    if (sqlite3_step(statement_) != SQLITE_ROW) {
        return nullptr;
    }
    return reinterpret_cast<const char *>(sqlite3_column_text(statement_, 0));
}

}  // namespace sqld
