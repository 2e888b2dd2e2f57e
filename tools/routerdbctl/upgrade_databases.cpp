#include "upgrade_databases.h"

#include <unistd.h>

#include <cstring>

namespace ctl {

namespace {

constexpr char in_memory[] = ":memory:";

/// Adds the name of a file such that SQLite opens it in a mode.
Sql &add_uri(Sql &uri, const char *path, const char *mode) {
    uri.add("file:");
    for (const char *byte = path; *byte != '\0'; ++byte) {
        const bool is_special = std::strchr("%?#", *byte) != nullptr;
        uri.add(is_special ? "%%%02x" : "%c", static_cast<unsigned char>(*byte));
    }
    return uri.add("?mode=%s", mode);
}

Status fail_with(const Database &database, const char *what) {
    return fail(Status::unreachable, "cannot %s: %s", what, sqlite3_errmsg(database.handle()));
}

bool is_there(const char *path) {
    return access(path, F_OK) == 0;
}

/// Whether a file can be locked and read as a database, however its tables are.
bool is_database(const char *path) {
    sqlite3 *db = nullptr;
    int code = sqlite3_open_v2(path, &db, SQLITE_OPEN_READWRITE, nullptr);
    code = code != SQLITE_OK ? code : sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    return code != SQLITE_NOTADB && code != SQLITE_CORRUPT && code != SQLITE_CANTOPEN;
}

}  // namespace

std::int32_t UpgradeDatabases::version(const char *schema) const {
    Sql sql;
    sql.add("PRAGMA %s.user_version", schema);
    return static_cast<std::int32_t>(number_of(database_, sql.text()));
}

Status UpgradeDatabases::write(const char *sql) {
    const int code = sqlite3_exec(database_.handle(), sql, nullptr, nullptr, nullptr);
    if (code == SQLITE_CONSTRAINT) {
        return fail(Status::refused, "the rows do not suit the new schema: %s", sqlite3_errmsg(database_.handle()));
    }
    return code == SQLITE_OK ? Status::done : fail_with(database_, "make the new database");
}

Status UpgradeDatabases::attach(const char *path, const char *mode, const char *schema) {
    Sql uri;
    if (std::strcmp(path, in_memory) == 0) {
        uri.add("%s", path);
    } else {
        add_uri(uri, path, mode);
    }
    Sql failure;
    failure.add("cannot open %s", path);
    Query attachment(database_, "ATTACH ?1 AS ?2", failure.text());
    attachment.bind(1, uri.text()).bind(2, schema).next();
    return attachment.status();
}

/// Without a live database, or beside one that is none, nobody has to be kept away.
Status UpgradeDatabases::open_live(const UpgradeWay &way, Hold hold, unsigned seconds) {
    if (!way.keeps_rows() && (!is_there(way.live) || !is_database(way.live))) {
        return database_.open_to_write(in_memory, seconds);
    }
    if (!is_there(way.live)) {
        return fail(Status::not_found, "there is no database (%s)", way.live);
    }
    Sql uri;
    const Status status = database_.open_to_write(add_uri(uri, way.live, "rw").text(), seconds);
    if (status != Status::done) {
        return status;
    }
    // A journal that was left is undone by who may write, now.
    const int code = sqlite3_exec(database_.handle(), "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        return fail(code == SQLITE_NOTADB || code == SQLITE_CORRUPT ? Status::refused : Status::unreachable,
                    "cannot read %s: %s", way.live, sqlite3_errmsg(database_.handle()));
    }
    // What has been written ahead would not be in the file that is kept.
    return hold == Hold::look ? Status::done : write("PRAGMA main.journal_mode = delete");
}

/// The new one begins as the target, with the rows of the factory.
Status UpgradeDatabases::copy_target(const UpgradeWay &way, const char *new_file, unsigned seconds) {
    Database source;
    Sql uri;
    Status status = source.open_to_write(add_uri(uri, way.to, "ro").text(), seconds);
    status = status != Status::done ? status : attach(new_file != nullptr ? new_file : in_memory, "rwc", fresh);
    if (status != Status::done) {
        return status;
    }
    // It is of no use to anybody before it is whole, and is synced then.
    Sql settings;
    settings.add("PRAGMA %s.page_size = %lld; PRAGMA %s.journal_mode = off; PRAGMA %s.synchronous = off", fresh,
                 static_cast<long long>(number_of(source, "PRAGMA page_size")), fresh, fresh);
    status = write(settings.text());
    if (status != Status::done) {
        return status;
    }
    sqlite3_backup *const copy = sqlite3_backup_init(database_.handle(), fresh, source.handle(), "main");
    sqlite3_backup_step(copy, -1);
    if (sqlite3_backup_finish(copy) != SQLITE_OK) {
        return fail_with(database_, "make the new database");
    }
    settings.add("; PRAGMA %s.journal_mode = delete; PRAGMA %s.journal_mode = off", fresh, fresh);
    return write(settings.text());
}

Status UpgradeDatabases::check_old() const {
    Sql sql;
    sql.add("PRAGMA %s.quick_check(1)", old_);
    Query check(database_, sql.text());
    if (!check.next() || check.text(0) != "ok") {
        return check.status() != Status::done ? Status::refused : fail(Status::refused, "the database is damaged");
    }
    Sql tables;
    tables.add("SELECT count(*) FROM %s.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%%'", old_);
    return number_of(database_, tables.text()) != 0 ? Status::done : fail(Status::refused, "the database has no table");
}

Status UpgradeDatabases::open(const UpgradeWay &way, const char *new_file, unsigned seconds) {
    if (!is_there(way.to)) {
        return fail(Status::not_found, "there is no such file (%s)", way.to);
    }
    const Hold hold = new_file != nullptr ? Hold::exclusive : Hold::look;
    Status status = open_live(way, hold, seconds);
    status = status != Status::done ? status : attach(way.to, "ro", target);
    if (status == Status::done && !way.keeps_rows()) {
        old_ = "old";
        status = attach(way.from, "ro", old_);
    }
    status = status != Status::done ? status : copy_target(way, new_file, seconds);
    if (status != Status::done) {
        return status;
    }
    status = begin(hold);
    return status != Status::done ? status : check_old();
}

/// From here on the rows stay as they are. Who waits for the lock keeps nobody from committing; who has it keeps it
/// when the new database is written, until the live one has been replaced.
Status UpgradeDatabases::begin(Hold hold) {
    constexpr char alone[] = "PRAGMA temp_store = memory; BEGIN EXCLUSIVE; PRAGMA main.locking_mode = exclusive";
    constexpr char beside[] = "PRAGMA temp_store = memory; BEGIN; SELECT count(*) FROM sqlite_master";
    const char *const sql = hold == Hold::exclusive ? alone : beside;
    return sqlite3_exec(database_.handle(), sql, nullptr, nullptr, nullptr) == SQLITE_OK
               ? Status::done
               : fail_with(database_, "have the database");
}

Status UpgradeDatabases::finish() {
    const Status status = write("COMMIT");
    Sql sql;
    sql.add("DETACH %s", fresh);
    return status != Status::done ? status : write(sql.text());
}

}  // namespace ctl
