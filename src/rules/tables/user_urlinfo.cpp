// User URLs.
#include "rules/tables/user_urlinfo.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::user_urlinfo;

int GetUserUrlItemListInServer(UserUrlItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetUserUrlItemList(UserUrlItemList *list) {
    list_items(table, list);
}

void GetUserUrlItem(int id, UserUrlItem *item) {
    get_item(table, id, item);
}

void AddUserUrlItem(const UserUrlItem *item) {
    add_item(table, item);
}

void ModifyUserUrlItem(const UserUrlItem *item) {
    modify_item(table, item);
}

void DelUserUrlItem(int id) {
    delete_item(table, id);
}
