// IP groups, which other rules reference.
#include "rules/tables/user_ipgroup.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::user_ipgroup;

int GetIpGroupItemListInServer(IpGroupItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetIpGroupItemList(IpGroupItemList *list) {
    list_items(table, list);
}

void GetIpGroupItem(int id, IpGroupItem *item) {
    get_item(table, id, item);
}

void AddIpGroupItem(const IpGroupItem *item) {
    add_item(table, item);
}

void ModifyIpGroupItem(const IpGroupItem *item) {
    modify_item(table, item);
}

void DelIpGroupItem(const char *condition) {
    delete_items(table, condition);
}
