#include "database.h"

#include "weekdays.h"

namespace ctl {

namespace {

Status fail_with(sqlite3 *db, const char *what) {
    return fail(Status::unreachable, "cannot read %s: %s", what, db != nullptr ? sqlite3_errmsg(db) : "out of memory");
}

/// A name between double quotes that no column has is an error, not a text.
void refuse_unknown_columns(sqlite3 *db) {
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
}

}  // namespace

Status Database::open(const char *path, unsigned seconds) {
    // A journal that a killed writer has left is undone by who may write only.
    if (sqlite3_open_v2(path, &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        return fail_with(db_, path);
    }
    sqlite3_busy_timeout(db_, static_cast<int>(seconds) * 1000);
    refuse_unknown_columns(db_);
    add_days_function(db_);
    constexpr char look[] = "pragma query_only = 1; select count(*) from sqlite_master;";
    return sqlite3_exec(db_, look, nullptr, nullptr, nullptr) == SQLITE_OK ? Status::done : fail_with(db_, path);
}

int Database::open_to_look(const char *path, int milliseconds) {
    int code = sqlite3_open_v2(path, &db_, SQLITE_OPEN_READONLY, nullptr);
    if (code == SQLITE_OK) {
        sqlite3_extended_result_codes(db_, 1);
        sqlite3_busy_timeout(db_, milliseconds);
        refuse_unknown_columns(db_);
        code = sqlite3_exec(db_, "select count(*) from sqlite_master;", nullptr, nullptr, nullptr);
    }
    return code;
}

Status Database::open_to_write(const char *uri, unsigned seconds) {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI;
    if (sqlite3_open_v2(uri, &db_, flags, nullptr) != SQLITE_OK) {
        return fail_with(db_, uri);
    }
    sqlite3_busy_timeout(db_, static_cast<int>(seconds) * 1000);
    refuse_unknown_columns(db_);
    sqlite3_db_config(db_, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    return Status::done;
}

Status Database::open_in_memory() {
    return sqlite3_open(":memory:", &db_) == SQLITE_OK ? Status::done : fail_with(db_, "memory");
}

Status Database::attach(const char *path, const char *schema) {
    Query attachment(*this, "attach ?1 as ?2");
    attachment.bind(1, path).bind(2, schema).next();
    return attachment.status();
}

Status Database::run(const char *sql) {
    return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) == SQLITE_OK ? Status::done
                                                                          : fail_with(db_, "the database");
}

Status Database::hold() {
    return run("begin; select count(*) from sqlite_master;");
}

Status Database::release() {
    return run("commit;");
}

Query::Query(const Database &database, const char *sql, const char *failure)
    : db_(database.handle()), failure_(failure) {
    if (sqlite3_prepare_v2(database.handle(), sql, -1, &statement_, nullptr) != SQLITE_OK) {
        status_ = fail(Status::unreachable, "%s: %s", failure_, sqlite3_errmsg(database.handle()));
    } else if (statement_ == nullptr) {
        status_ = fail(Status::unreachable, "%s: it is empty", failure_);
    }
}

Query &Query::bind(int number, std::string_view value) {
    sqlite3_bind_text(statement_, number, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    return *this;
}

Query &Query::bind(int number, std::int64_t value) {
    sqlite3_bind_int64(statement_, number, value);
    return *this;
}

bool Query::next() {
    if (status_ != Status::done) {
        return false;
    }
    const int code = sqlite3_step(statement_);
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        status_ = fail(Status::unreachable, "%s: %s", failure_, sqlite3_errmsg(sqlite3_db_handle(statement_)));
    }
    return code == SQLITE_ROW;
}

void Query::rewind() {
    sqlite3_reset(statement_);
}

std::string_view Query::text(int column) const {
    const unsigned char *const text = sqlite3_column_text(statement_, column);
    return text == nullptr ? std::string_view()
                           : std::string_view(reinterpret_cast<const char *>(text),
                                              static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)));
}

std::int64_t number_of(const Database &database, const char *sql) {
    Query query(database, sql);
    return query.next() ? query.number(0) : 0;
}

}  // namespace ctl
