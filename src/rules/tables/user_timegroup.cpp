// Time groups, which other rules reference.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "rules/tables.h"

using namespace routerdb;

namespace {

using Record = TimeGroupItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    WEEKDAYS(2),
    TEXT(start_time, 9),
    TEXT(end_time, 10),
    TEXT(mark, 11),
};
// clang-format on

}  // namespace

constexpr RuleTable tables::user_timegroup = rule_table<Record>("user_timegroup", ROUTERDB_TABLE_TIME_GROUP, fields);

using tables::user_timegroup;

int GetTimeGroupItemListInServer(TimeGroupItemList *list, const char *sql) {
    return build_item_list(user_timegroup, list, or_empty(sql));
}

void GetTimeGroupItemList(TimeGroupItemList *list) {
    list_items(user_timegroup, list);
}

void GetTimeGroupItem(int id, TimeGroupItem *item) {
    get_item(user_timegroup, id, item);
}

void AddTimeGroupItem(const TimeGroupItem *item) {
    add_item(user_timegroup, item);
}

void ModifyTimeGroupItem(const TimeGroupItem *item) {
    modify_item(user_timegroup, item);
}

void DelTimeGroupItem(const char *condition) {
    delete_items(user_timegroup, condition);
}
