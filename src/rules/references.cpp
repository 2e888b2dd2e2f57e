#include "rules/references.h"

#include "core/statement.h"
#include "rules/field_reader.h"
#include "rules/sql_builder.h"
#include "rules/tables/user_timegroup.h"
#include "text/text.h"

namespace routerdb {

namespace {

using tables::user_timegroup::table;

void read_time_group(const Statement &statement, void *group) {
    const Columns columns(table, statement.handle());
    read_fields(table, columns, statement.row(), group);
}

void read_ip_group(const Statement &statement, void *group) {
    IpGroupItem &ip_group = *static_cast<IpGroupItem *>(group);
    const Row row = statement.row();
    row.copy(0, ip_group.name, sizeof(ip_group.name));
    row.copy(1, ip_group.startip, sizeof(ip_group.startip));
    row.copy(2, ip_group.endip, sizeof(ip_group.endip));
}

/// Prepares a lookup and steps to its row.
/// @return whether it went well, with or without a row
bool look_up(sqlite3 *db, const Text &sql, Wording failure, ReadGroup read, void *group) {
    CallErrno call;
    Backoff backoff(FirstDelay::random);
    Statement statement;
    if (statement.prepare(db, sql.c_str(), backoff, {Stream::standard_output, failure}) &&
        statement.next_row(backoff)) {
        read(statement, group);
    }
    if (!statement.ended_well()) {
        call.fail(errno_of(statement.code()));
    }
    return statement.ended_well();
}

/// The same with a statement for all lookups of a list, which is prepared by the first of them. It says nothing when it
/// fails.
bool look_up_bound(sqlite3 *db, Statement &statement, const char *sql, int id, ReadGroup read, void *group) {
    Backoff backoff(FirstDelay::random);
    if (statement.handle() == nullptr && !statement.prepare(db, sql, backoff, no_message)) {
        return false;
    }
    StackText<16> text;  // as the other lookups have it, so that the column converts it in the same way
    text.append(long{id});
    const bool bound = statement.bind(text.c_str());
    if (bound && statement.next_row(backoff)) {
        read(statement, group);
    }
    const bool went_well = bound && statement.ended_well();
    statement.reset();
    return went_well;
}

}  // namespace

bool find_time_group(sqlite3 *db, int id, TimeGroupItem &group) {
    group = {};
    StackText<64> sql;
    append_select(sql, table, id);
    return look_up(db, sql, Wording::cannot_prepare, read_time_group, &group);
}

bool find_ip_group(sqlite3 *db, int id, IpGroupItem &group) {
    group = {};
    StackText<80> sql;
    sql.append("select name,startip,endip from user_ipgroup where Id=").append_quoted(long{id}).append(" ;");
    return look_up(db, sql, Wording::error, read_ip_group, &group);
}

template <typename Group>
void References::find(Groups<Group> &groups, const Lookup<Group> &lookup, int id, Group &group) {
    const Known<Group> *const known = groups.known.find([id](const Known<Group> &entry) { return entry.id == id; });
    if (known != nullptr) {
        group = known->group;
        return;
    }
    group = {};
    const bool bound =
        build_profile.binds_ids && look_up_bound(db_, groups.statement, lookup.text, id, lookup.read, &group);
    if (bound || lookup.find(db_, id, group)) {
        if (Known<Group> *const entry = groups.known.add()) {
            *entry = {id, group};
        }
    } else {
        call_.fail(errno_of(sqlite3_errcode(db_)));
    }
}

void References::find_time_group(int id, TimeGroupItem &group) {
    constexpr Lookup<TimeGroupItem> lookup{"select * from user_timegroup where id=?1;", read_time_group,
                                           routerdb::find_time_group};
    find(time_groups_, lookup, id, group);
}

void References::find_ip_group(int id, IpGroupItem &group) {
    constexpr Lookup<IpGroupItem> lookup{"select name,startip,endip from user_ipgroup where Id=?1 ;", read_ip_group,
                                         routerdb::find_ip_group};
    find(ip_groups_, lookup, id, group);
}

}  // namespace routerdb
