// Who is in the way of writers.
#include <cstdio>
#include <cstring>

#include "commands.h"
#include "core/paths.h"
#include "lock_holders.h"
#include "output.h"
#include "sql.h"

namespace ctl {

namespace {

using routerdb::paths::lock_file;

bool is_for_people(Format format) {
    return format == Format::standard || format == Format::table;
}

/// Adds a query with a row for each holder.
void add_rows_of(Sql &sql, const LockHolders &found) {
    constexpr char row[] =
        "SELECT %d AS process, %Q AS user,"
        " strftime('%%Y-%%m-%%d %%H:%%M:%%S', %lld, 'unixepoch', 'localtime') AS process_started, %Q AS kind, %Q AS "
        "command";
    sql.add("SELECT * FROM (");
    for (unsigned i = 0; i < found.count; ++i) {
        const LockHolder &holder = found.holders[i];
        sql.add(i == 0 ? "" : " UNION ALL ");
        sql.add(row, static_cast<int>(holder.process.id), name_of_user(holder.process.user),
                static_cast<long long>(holder.process.started),
                holder.is_of_open_file ? "lock of an open file" : "lock of the process", holder.process.command);
    }
    if (found.count == 0) {
        sql.add(row, 0, "", 0LL, "", "");  // for its columns
    }
    sql.add(") WHERE process <> 0");
}

Status print_holders(const Invocation &invocation, const LockHolders &found) {
    Database values;
    const Status status = values.open_in_memory();
    if (status != Status::done) {
        return status;
    }
    Sql sql;
    add_rows_of(sql, found);
    Query query(values, sql.text());
    return print_rows(invocation, query);
}

}  // namespace

Status show_lock(Invocation &invocation) {
    const LockHolders found = LockHolders::find();
    if (found.state == LockState::missing) {
        return fail(Status::not_found, "there is no lock file %s, without which no program changes anything",
                    lock_file);
    }
    if (found.state == LockState::closed) {
        return fail(Status::unreachable, "cannot look at %s: %s", lock_file, std::strerror(found.reason));
    }
    const bool is_held = found.state == LockState::held;
    Status status = Status::done;
    if (found.count != 0 || !is_for_people(invocation.options.format)) {
        status = print_holders(invocation, found);
    } else if (!is_held) {
        std::printf("nobody holds %s\n", lock_file);
    }
    if (status == Status::done && is_held) {
        status = found.count != 0 ? Status::refused : fail(Status::refused, "%s is %s", lock_file, found.why_unknown());
    }
    return status;
}

}  // namespace ctl
