// The database as a whole: backup, restore, reset; and statements as they are typed.
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "beside.h"
#include "change.h"
#include "commands.h"
#include "core/paths.h"
#include "differences.h"
#include "exported.h"
#include "output.h"
#include "question.h"
#include "routerdb.h"
#include "session.h"
#include "sql.h"

namespace ctl {

namespace {

namespace paths = routerdb::paths;

/// Copies take longer than statements.
constexpr unsigned seconds_of_a_copy = 60;

/// Calls what must not be ended half way.
Status copy(const Invocation &invocation, int (*call)(void *)) {
    Sql message;
    const unsigned seconds = invocation.options.seconds != 0 ? invocation.options.seconds : seconds_of_a_copy;
    switch (call_apart(call, nullptr, seconds, WhenOverdue::leave, message)) {
        case Outcome::done:
            return Status::done;
        case Outcome::overdue:
            return fail(Status::unknown, "it takes more than %u s and still goes on; see \"routerdbctl lock\"",
                        seconds);
        default:
            return fail(Status::unreachable, "it has failed: %s",
                        *message.text() != '\0' ? message.text() : "the system log may say why");
    }
}

/// Compares the main database with what was copied from or to it.
/// @return done when they are the same
Status check_copy(const Invocation &invocation, const char *name) {
    Session session(invocation);
    Status status = session.status();
    status = status != Status::done ? status : put_beside(session.database(), name);
    status = status != Status::done ? status : compare(session.database(), "main", other, nullptr, 0);
    if (status == Status::done && number_of(session.database(), "SELECT count(*) FROM differences") != 0) {
        warn("the database is not what the %s is: another program has changed it meanwhile", name);
    }
    return status;
}

/// Shows what a copy would change, asks, and copies.
Status copy_over(const Invocation &invocation, const char *name, int (*call)(void *)) {
    bool differs = false;
    Status status = Status::done;
    if (access(paths::main_database, F_OK) == 0) {
        Session session(invocation);
        status = session.status();
        status = status != Status::done ? status : put_beside(session.database(), name);
        status = status != Status::done ? status : compare(session.database(), "main", other, nullptr, 0);
        status = status != Status::done ? status : print_differences(invocation, session.database(), differs);
    }
    if (status != Status::done && !invocation.options.has(option_force)) {
        return status;
    }
    if (invocation.options.is_dry_run) {
        return Status::done;
    }
    status = confirm(invocation, "Put the %s in the database's place?", name);
    status = status != Status::done ? status : copy(invocation, call);
    return status != Status::done ? status : check_copy(invocation, name);
}

/// Whether the backup lacks a column of the database, or has it in another place. The library does not restore that in
/// the modern profile.
bool is_of_another_schema(const Invocation &invocation) {
    Session session(invocation);
    return session.status() == Status::done && put_beside(session.database(), "backup") == Status::done &&
           number_of(session.database(),
                     "SELECT count(*) FROM main.sqlite_master AS live, pragma_table_info(live.name, 'main') AS wanted "
                     "WHERE live.type = 'table' AND live.name NOT LIKE 'sqlite%' AND NOT EXISTS (SELECT 1 FROM "
                     "pragma_table_info(live.name, 'other') AS found WHERE found.cid = wanted.cid AND found.name = "
                     "wanted.name COLLATE NOCASE)") != 0;
}

/// Lets nothing but reading through.
int permit_reading(void *, int action, const char *, const char *, const char *, const char *) {
    const bool reads =
        action == SQLITE_SELECT || action == SQLITE_READ || action == SQLITE_FUNCTION || action == SQLITE_RECURSIVE;
    return reads ? SQLITE_OK : SQLITE_DENY;
}

}  // namespace

Status back_up(Invocation &invocation) {
    if (invocation.options.is_dry_run) {
        std::printf("%s -> %s\n", paths::main_database, paths::backup_database);
        return Status::done;
    }
    Session session(invocation);  // so that no backup is made of what is none
    Status status = session.status();
    status = status != Status::done ? status : copy(invocation, [](void *) { return backup_sqlite_db(); });
    return status != Status::done ? status : check_copy(invocation, "backup");
}

Status restore(Invocation &invocation) {
    const Status status = copy_over(invocation, "backup", [](void *) { return restore_sqlite_db(); });
    if (status == Status::unreachable && is_of_another_schema(invocation)) {
        warn("the backup is of another schema; \"routerdbctl db upgrade --from %s\" can bring its rows over",
             paths::backup_database);
    }
    return status;
}

Status reset(Invocation &invocation) {
    return copy_over(invocation, "factory", [](void *) { return reset_sqlite_db(); });
}

Status execute_sql(Invocation &invocation) {
    const char *const sql = invocation.arguments[0];
    if (invocation.options.is_dry_run) {
        std::puts(sql);
        return Status::done;
    }
    const Status status = confirm(invocation, "Execute this?");
    const Database none;
    const Sql no_proof;
    return status != Status::done ? status : change(invocation, none, sql, no_proof);
}

Status query_sql(Invocation &invocation) {
    Session session(invocation);
    if (session.status() != Status::done) {
        return session.status();
    }
    sqlite3_set_authorizer(session.database().handle(), permit_reading, nullptr);
    Query query(session.database(), invocation.arguments[0], "this is no query that reads");
    return query.status() == Status::done ? print_rows(invocation, query) : Status::refused;
}

Status count_sql(Invocation &invocation) {
    Session session(invocation);
    if (session.status() != Status::done) {
        return session.status();
    }
    sqlite3_set_authorizer(session.database().handle(), permit_reading, nullptr);
    Query query(session.database(), invocation.arguments[0], "this is no query that reads");
    if (!query.next()) {
        return query.status() != Status::done ? Status::refused : fail(Status::not_found, "the query has no row");
    }
    std::printf("%lld\n", static_cast<long long>(query.number(0)));
    return Status::done;
}

}  // namespace ctl
