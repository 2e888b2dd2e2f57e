// Family members.
#include "rules/tables/famliymember.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::famliymember;

int GetFamliyMemberItemListInServer(FamliyMemberItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetFamliyMemberItemList(FamliyMemberItemList *list) {
    list_items(table, list);
}

void GetFamliyMemberItem(int id, FamliyMemberItem *item) {
    get_item(table, id, item);
}

void AddFamliyMemberItem(const FamliyMemberItem *item) {
    add_item(table, item);
}

void ModifyFamliyMemberItem(const FamliyMemberItem *item) {
    modify_item(table, item);
}

void DelFamliyMemberItem(const char *condition) {
    delete_items(table, condition);
}
