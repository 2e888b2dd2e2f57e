// Time groups, which other rules reference.
#include "rules/tables/user_timegroup.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::user_timegroup;

int GetTimeGroupItemListInServer(TimeGroupItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetTimeGroupItemList(TimeGroupItemList *list) {
    list_items(table, list);
}

void GetTimeGroupItem(int id, TimeGroupItem *item) {
    get_item(table, id, item);
}

void AddTimeGroupItem(const TimeGroupItem *item) {
    add_item(table, item);
}

void ModifyTimeGroupItem(const TimeGroupItem *item) {
    modify_item(table, item);
}

void DelTimeGroupItem(const char *condition) {
    delete_items(table, condition);
}
