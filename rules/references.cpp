#include "rules/references.h"

#include "core/statement.h"
#include "core/text.h"
#include "rules/record_reader.h"
#include "rules/sql_builder.h"
#include "rules/tables.h"

namespace routerdb {

namespace {

/// Prepares a lookup and steps to its row.
/// @param read  takes the row if there is one
/// @return whether the lookup went well, with or without a row
template <typename Read>
bool look_up(sqlite3 *db, const Text &sql, Wording failure, Read read) {
    Backoff backoff(FirstDelay::random);
    Statement statement;
    const int code = statement.prepare(db, sql.c_str(), backoff);
    if (code != SQLITE_OK) {
        report({Stream::standard_output, failure}, {nullptr, code, sqlite3_errmsg(db)});
        return false;
    }
    if (statement.first_row(backoff)) {
        read(statement);
    }
    return statement.ended_well();
}

}  // namespace

bool find_time_group(sqlite3 *db, int id, TimeGroupItem &group) {
    group = {};
    StackText<64> sql;
    append_select(sql, tables::user_timegroup, id);
    return look_up(db, sql, Wording::cannot_prepare, [&](const Statement &statement) {
        const Columns columns(tables::user_timegroup, statement.handle());
        read_record(tables::user_timegroup, columns, statement.row(), &group);
    });
}

bool find_ip_group(sqlite3 *db, int id, IpGroupItem &group) {
    group = {};
    StackText<80> sql;
    sql.append("select name,startip,endip from user_ipgroup where Id=").append_quoted(long{id}).append(" ;");
    return look_up(db, sql, Wording::error, [&](const Statement &statement) {
        const Row row = statement.row();
        row.copy(0, group.name, sizeof(group.name));
        row.copy(1, group.startip, sizeof(group.startip));
        row.copy(2, group.endip, sizeof(group.endip));
    });
}

template <typename Group>
void References::find(Remembered<Known<Group>> &known, bool (*look_up)(sqlite3 *db, int id, Group &group), int id,
                      Group &group) {
    const Known<Group> *found = known.find([id](const Known<Group> &entry) { return entry.id == id; });
    if (found != nullptr) {
        group = found->group;
        return;
    }
    if (look_up(db_, id, group)) {
        if (Known<Group> *entry = known.add()) {
            *entry = {id, group};
        }
    }
}

void References::find_time_group(int id, TimeGroupItem &group) {
    find(time_groups_, routerdb::find_time_group, id, group);
}

void References::find_ip_group(int id, IpGroupItem &group) {
    find(ip_groups_, routerdb::find_ip_group, id, group);
}

}  // namespace routerdb
