// Port forwardings. The record has its members in an order of its own.
#include "rules/tables/forword_ipport.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::forword_ipport;

int GetPortFwItemListInServer(PortFwItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetPortFwItemList(PortFwItemList *list) {
    list_items(table, list);
}

void GetPortFwItem(int id, PortFwItem *item) {
    get_item(table, id, item);
}

void AddPortFwItem(const PortFwItem *item) {
    add_item(table, item);
}

void ModifyPortFwItem(const PortFwItem *item) {
    modify_item(table, item);
}

void DelPortFwItem(const char *condition) {
    delete_items(table, condition);
}
