// List builders of rules by hand.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/texts.h"
#include "harness/variants.h"

namespace bench::bare {

namespace {

void read_time_group(sqlite3 *db, int id, TimeGroupItem &group) {
    group = {};
    draw_delay();
    char sql[64];
    std::snprintf(sql, sizeof(sql), "select * from user_timegroup where id='%d';", id);
    sqlite3_stmt *const statement = prepare(db, sql);
    if (sqlite3_step(statement) == SQLITE_ROW) {
        group.id = integer(statement, 0);
        copy(statement, 1, group.name);
        for (int day = 0; day < 7; ++day) {
            group.weekday[day] = integer(statement, 2 + day);
        }
        copy(statement, 9, group.start_time);
        copy(statement, 10, group.end_time);
        copy(statement, 11, group.mark);
    }
    sqlite3_finalize(statement);
}

void follow_time_group(sqlite3 *db, UrlFilterItem &rule) {
    TimeGroupItem group;
    read_time_group(db, rule.timegroup_id, group);
    std::memcpy(&rule.timegroup, &group, sizeof(rule.timegroup));
    std::memcpy(rule.timegroup_name, group.name, sizeof(group.name));
    std::memcpy(rule.weekday, group.weekday, sizeof(group.weekday));
    std::memcpy(rule.start_time, group.start_time, sizeof(group.start_time));
    std::memcpy(rule.end_time, group.end_time, sizeof(group.end_time));
}

void read_url_filter(sqlite3 *db, sqlite3_stmt *statement, UrlFilterItem &rule) {
    rule.id = integer(statement, 0);
    copy(statement, 1, rule.name);
    copy(statement, 2, rule.url);
    rule.timecontrol = integer(statement, 3);
    if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
        rule.timegroup_id = integer(statement, 4);
    } else if (rule.timecontrol == ROUTERDB_TIME_OWN) {
        for (int day = 0; day < 7; ++day) {
            rule.weekday[day] = integer(statement, 5 + day);
        }
        copy(statement, 12, rule.start_time);
        copy(statement, 13, rule.end_time);
    }
    rule.status = integer(statement, 14);
    copy(statement, 15, rule.mark);
    if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
        follow_time_group(db, rule);
    }
    rule.time_valid = rule.timecontrol == ROUTERDB_TIME_GROUP || rule.timecontrol == ROUTERDB_TIME_OWN ? 1 : 0;
}

}  // namespace

void list_url_filters() {
    desk.url_filters = {};
    const Lock lock(Lock::Draw::before_opening);
    sqlite3 *const db = open(paths::main_database);
    sqlite3_stmt *const statement = prepare(db, "select * from filter_url order by Id;");
    while (sqlite3_step(statement) == SQLITE_ROW) {
        read_url_filter(db, statement, desk.url_filters.items[desk.url_filters.count++]);
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

}  // namespace bench::bare
