#include "database.h"

#include <sys/stat.h>
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

/// The connection that scalars are read with. Opening one takes several times as long as reading.
namespace kept {

sqlite3 *db;
struct stat file;

bool is_same(const timespec &one, const timespec &other) {
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

/// Whether the file has not changed since the connection was opened. SQLite would notice most changes, but not every
/// copy in the place of the file.
bool is_fresh() {
    struct stat now {};
    return stat(routerdb::paths::main_database, &now) == 0 && now.st_dev == file.st_dev && now.st_ino == file.st_ino &&
           now.st_size == file.st_size && is_same(now.st_mtim, file.st_mtim) && is_same(now.st_ctim, file.st_ctim);
}

void close() {
    sqlite3_close(db);
    db = nullptr;
}

/// @return null if it cannot be opened
sqlite3 *lend() {
    if (db != nullptr && is_fresh()) {
        return db;
    }
    close();
    if (!open_main_database(db) || stat(routerdb::paths::main_database, &file) != 0) {
        close();
    }
    return db;
}

/// A write-ahead log is put back by whoever closes the last connection.
void give_back() {
    if (access(routerdb::paths::main_write_ahead_log, F_OK) == 0) {
        close();
    }
}

}  // namespace kept

}  // namespace

Query::Query(const char *sql) : lock_(get_db_lock()) {
    if (lock_ < 0) {
        return;
    }
    db_ = kept::lend();
    failure_ = db_ != nullptr ? prepare_query(db_, sql, statement_) : "the main database cannot be opened";
}

Query::~Query() {
    sqlite3_finalize(statement_);
    if (failure_ != nullptr) {
        kept::close();
    }
    kept::give_back();
    if (lock_ >= 0) {
        free_db_lock(lock_);
    }
}

const char *Query::first_text() {
    const int code = sqlite3_step(statement_);
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        failure_ = sqlite3_errstr(code);  // a row that cannot be read is not the end
    }
    if (code != SQLITE_ROW || sqlite3_column_type(statement_, 0) == SQLITE_NULL) {
        return nullptr;
    }
    const auto *const text = reinterpret_cast<const char *>(sqlite3_column_text(statement_, 0));
    if (text == nullptr) {
        failure_ = sqlite3_errstr(SQLITE_NOMEM);
    }
    return text;
}

bool may_execute(const char *sql, bool may_change_schema) {
    sqlite3 *db = nullptr;
    const bool may = !open_main_database(db) || permits_execution(db, sql, may_change_schema);  // or it fails anyway
    sqlite3_close(db);
    return may;
}

}  // namespace sqld
