#include "core/transaction.h"

#include "core/statement.h"

namespace routerdb {

Transaction::Transaction(Access &access) : access_(access) {
    // From the first lookup on nobody else writes, or what was looked up could be old.
    execute("begin immediate;");
}

bool Transaction::execute(SqlView sql) {
    if (went_well()) {
        code_ = sql.complete() ? sqlite3_exec(access_.db(), sql.text(), nullptr, nullptr, nullptr) : SQLITE_NOMEM;
    }
    return went_well();
}

bool Transaction::count(SqlView sql, unsigned &rows, unsigned long &number) {
    if (!went_well()) {
        return false;
    }
    Statement statement;  // closed before anything is written
    if (!sql.complete() || !statement.prepare(access_.db(), sql.text(), access_.backoff(), no_message)) {
        code_ = SQLITE_ERROR;
        return false;
    }
    for (rows = 0; statement.next_row(access_.backoff()); ++rows) {
        number = statement.row().unsigned_number(static_cast<int>(rows));
    }
    code_ = statement.ended_well() ? SQLITE_OK : SQLITE_ERROR;
    return went_well();
}

int Transaction::end() {
    execute("commit;");
    if (!went_well()) {
        leave_transaction(access_.db());
    }
    return code_;
}

}  // namespace routerdb
