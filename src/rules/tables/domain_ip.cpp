// Domain-to-IP entries.
#include "rules/tables/domain_ip.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::domain_ip;

int GetDomainIpItemListInServer(DomainIpItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetDomainIpItemList(DomainIpItemList *list) {
    list_items(table, list);
}

void GetDomainIpItem(int id, DomainIpItem *item) {
    get_item(table, id, item);
}

void AddDomainIpItem(const DomainIpItem *item) {
    add_item(table, item);
}

void ModifyDomainIpItem(const DomainIpItem *item) {
    modify_item(table, item);
}

void DelDomainIpItem(const char *condition) {
    delete_items(table, condition);
}
