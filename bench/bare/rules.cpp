// List builders of rules by hand.
#include <cstdio>

#include "bare/by_hand.h"
#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/reading.h"

namespace bench::bare {

namespace {

void follow_time_group(sqlite3 *db, UrlFilterItem &rule) {
    draw_delay();
    char sql[64];
    std::snprintf(sql, sizeof(sql), "select * from user_timegroup where id='%d';", rule.timegroup_id);
    for_first(db, sql, [&rule](const Row &row) { read_time_group(row, 0, rule); });
}

}  // namespace

void list_url_filters() {
    desk.url_filters = {};
    const Lock lock(Lock::Draw::before_opening);
    const Connection db(paths::main_database);
    for_each(db, "select * from filter_url order by Id;", [&db](const Row &row) {
        UrlFilterItem &rule = desk.url_filters.items[desk.url_filters.count++];
        read_url_filter(row, rule);
        if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
            follow_time_group(db, rule);
        }
    });
}

}  // namespace bench::bare
