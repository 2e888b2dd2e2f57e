// The smart-QoS white list.
#include "rules/tables/smartqos_whitelist.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::smartqos_whitelist;

int GetSmartQosItemListInServer(SmartQosItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetSmartQosItemList(SmartQosItemList *list) {
    list_items(table, list);
}

void GetSmartQosItem(int id, SmartQosItem *item) {
    get_item(table, id, item);
}

void AddSmartQosItem(const SmartQosItem *item) {
    add_item(table, item);
}

void ModifySmartQosItem(const SmartQosItem *item) {
    modify_item(table, item);
}

void DelSmartQosItem(int id) {
    delete_item(table, id);
}
