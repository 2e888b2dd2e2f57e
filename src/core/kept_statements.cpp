#include "core/kept_statements.h"

#include <climits>

#include "core/statement_shape.h"

namespace routerdb {

int KeptStatements::prepare(sqlite3 *db, const char *sql, sqlite3_stmt **statement) {
    StackText<1024> text;
    *statement = take(sql);
    if (*statement == nullptr) {
        append_shape(text, sql);
        const int code = text.complete() ? sqlite3_prepare_v2(db, text.c_str(), -1, statement, nullptr) : SQLITE_NOMEM;
        if (code != SQLITE_OK) {
            return code;
        }
    }
    return bind_values(*statement, sql, text);
}

void KeptStatements::put_back(sqlite3_stmt *statement, unsigned limit) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    unsigned place = 0;
    while (place != count_ && entries_[place].statement != statement) {
        ++place;
    }
    if (place == count_) {
        const int memory = sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_MEMUSED, 0);
        entries_[count_++].memory = static_cast<unsigned>(memory) & INT_MAX;
    }
    const Entry entry = {statement, entries_[place].memory, 0};
    for (; place != 0; --place) {
        entries_[place] = entries_[place - 1];
    }
    entries_[0] = entry;
    shrink(limit);
}

void KeptStatements::clear() {
    shrink(0);
}

/// A statement that is at hand, which then is lent.
sqlite3_stmt *KeptStatements::take(const char *sql) {
    for (Entry *entry = entries_; entry != entries_ + count_; ++entry) {
        if (entry->lent == 0 && is_shape_of(sqlite3_sql(entry->statement), sql)) {
            entry->lent = 1;
            return entry->statement;
        }
    }
    return nullptr;
}

/// Finalises what there is no room for, and leaves a place for the next one. Those that are lent stay.
void KeptStatements::shrink(unsigned limit) {
    unsigned left = 0;
    unsigned memory = 0;
    for (unsigned place = 0; place != count_; ++place) {
        const Entry entry = entries_[place];
        if (entry.lent != 0 || (memory + entry.memory <= limit && left != capacity)) {
            memory += entry.memory;
            entries_[left++] = entry;
        } else {
            sqlite3_finalize(entry.statement);
        }
    }
    count_ = left;
}

}  // namespace routerdb
