#include "core/statement.h"

#include "core/retry.h"

namespace routerdb {

void Statement::finalize() {
    if (statement_ != nullptr) {
        sqlite3_finalize(statement_);
        statement_ = nullptr;
    }
}

int Statement::prepare(sqlite3 *db, const char *sql, Backoff &backoff) {
    db_ = db;
    code_ = retry_while_busy(backoff, db_, [&] { return sqlite3_prepare_v2(db_, sql, -1, &statement_, nullptr); });
    return code_;
}

bool Statement::first_row(Backoff &backoff) {
    if (statement_ == nullptr) {
        return false;
    }
    if (code_ == SQLITE_OK) {
        code_ = retry_while_busy(backoff, db_, [&] { return sqlite3_step(statement_); });
    }
    return code_ == SQLITE_ROW;
}

bool Statement::next_row() {
    code_ = sqlite3_step(statement_);
    return code_ == SQLITE_ROW;
}

}  // namespace routerdb
