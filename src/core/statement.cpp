#include "core/statement.h"

#include "build_profile.h"
#include "core/kept_connection.h"
#include "core/retry.h"

namespace routerdb {

void Statement::finalize() {
    if (statement_ != nullptr) {
        if (build_profile.keeps_connection) {
            kept_connection::finalize(db_, statement_);
        } else {
            sqlite3_finalize(statement_);
        }
        statement_ = nullptr;
    }
}

bool Statement::prepare(sqlite3 *db, const char *sql, Backoff &backoff, Message failure) {
    db_ = db;
    code_ = retry_while_busy(backoff, db_, [&] {
        return build_profile.keeps_connection ? kept_connection::prepare(db_, sql, &statement_)
                                              : sqlite3_prepare_v2(db_, sql, -1, &statement_, nullptr);
    });
    if (code_ != SQLITE_OK) {
        report(failure, {nullptr, code_, sqlite3_errmsg(db_)});
    }
    return code_ == SQLITE_OK;
}

bool Statement::next_row(Backoff &backoff) {
    const auto step = [this] { return sqlite3_step(statement_); };
    if (statement_ == nullptr) {
        return false;
    }
    if (code_ == SQLITE_OK) {
        code_ = retry_while_busy(backoff, db_, step);
    } else if (code_ == SQLITE_ROW) {
        code_ = step();
    }
    return has_row();
}

}  // namespace routerdb
