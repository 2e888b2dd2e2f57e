#include "rules/time_span.h"

#include <cstring>

#include "core/statement.h"
#include "core/text.h"
#include "rules/record.h"
#include "rules/record_reader.h"
#include "rules/sql_builder.h"
#include "rules/tables.h"

namespace routerdb {

namespace {

void copy_group(const TimeSpan &span, const TimeGroupItem &group, void *record) {
    // The size is the record's: `filter_url` carries the group without its last four bytes, where its flag lies.
    std::memcpy(member(record, span.group), &group, span.group_size);
    std::memcpy(member(record, span.group_name), group.name, sizeof(group.name));
    std::memcpy(member(record, span.weekday), group.weekday, sizeof(group.weekday));
    std::memcpy(member(record, span.start_time), group.start_time, sizeof(group.start_time));
    std::memcpy(member(record, span.end_time), group.end_time, sizeof(group.end_time));
}

}  // namespace

void find_time_group(sqlite3 *db, int id, TimeGroupItem &group) {
    group = {};
    StackText<64> sql;
    append_select(sql, tables::user_timegroup, id);
    Backoff backoff(FirstDelay::random);
    Statement statement(db);
    const int code = statement.prepare(sql.c_str(), backoff);
    if (code != SQLITE_OK) {
        report({Stream::standard_output, Wording::cannot_prepare}, {nullptr, code, sqlite3_errmsg(db)});
        return;
    }
    if (statement.first_row(backoff)) {
        read_record(tables::user_timegroup, db, statement.row(), &group);
    }
}

void settle_time_span(const TimeSpan &span, sqlite3 *db, void *record) {
    const std::int32_t control = number_at(record, span.control);
    bool valid = control == ROUTERDB_TIME_OWN;
    if (control == ROUTERDB_TIME_GROUP) {
        const std::int32_t id = number_at(record, span.group_id);
        if (id >= 0) {
            TimeGroupItem group;
            find_time_group(db, id, group);
            copy_group(span, group, record);
            valid = true;  // also for a group that does not exist: its times are then empty
        }
    }
    if (span.valid != 0) {
        put_number(record, span.valid, valid ? 1 : 0);
    }
}

}  // namespace routerdb
