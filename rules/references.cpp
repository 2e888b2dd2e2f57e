#include "rules/references.h"

#include "core/statement.h"
#include "core/text.h"
#include "rules/record_reader.h"
#include "rules/sql_builder.h"
#include "rules/tables.h"

namespace routerdb {

namespace {

/// Prepares a lookup and steps to its row.
/// @return whether there is one
bool find(Statement &statement, sqlite3 *db, const Text &sql, Wording failure) {
    Backoff backoff(FirstDelay::random);
    const int code = statement.prepare(db, sql.c_str(), backoff);
    if (code != SQLITE_OK) {
        report({Stream::standard_output, failure}, {nullptr, code, sqlite3_errmsg(db)});
        return false;
    }
    return statement.first_row(backoff);
}

}  // namespace

void References::find_time_group(int id, TimeGroupItem &group) {
    group = {};
    StackText<64> sql;
    append_select(sql, tables::user_timegroup, id);
    Statement statement;
    if (find(statement, db_, sql, Wording::cannot_prepare)) {
        const Columns columns(tables::user_timegroup, statement.handle());
        read_record(tables::user_timegroup, columns, statement.row(), &group);
    }
}

void References::find_ip_group(int id, IpGroupItem &group) {
    group = {};
    StackText<80> sql;
    sql.append("select name,startip,endip from user_ipgroup where Id=").append_quoted(long{id}).append(" ;");
    Statement statement;
    if (find(statement, db_, sql, Wording::error)) {
        const Row row = statement.row();
        row.copy(0, group.name, sizeof(group.name));
        row.copy(1, group.startip, sizeof(group.startip));
        row.copy(2, group.endip, sizeof(group.endip));
    }
}

}  // namespace routerdb
