// The three Wi-Fi access lists.
#include "rules/tables/acl.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables;

namespace {

constexpr RuleTable no_list = rule_table<AclItem, acl::fields>("", no_table);

/// The table of an access list. For one that does not exist nothing is sent.
const RuleTable &table_of(int number) {
    switch (number) {
        case 0:
            return wifi0acl::table;
        case 1:
            return wifi1acl::table;
        case 2:
            return wifi2acl::table;
        default:
            return no_list;
    }
}

}  // namespace

int Get2GAclItemListInServer(AclItemList *list, const char *sql) {
    return build_item_list(wifi0acl::table, list, or_empty(sql));
}

int Get5GAclItemListInServer(AclItemList *list, const char *sql) {
    return build_item_list(wifi0acl::table, list, or_empty(sql));
}

void GetAclItemList(AclItemList *list, int number) {
    list_items(table_of(number), list);
}

void GetAclItem(int id, AclItem *item, int number) {
    get_item(table_of(number), id, item);
}

void AddAclItem(const AclItem *item, int number) {
    add_item(table_of(number), item);
}

void ModifyAclItem(const AclItem *item, int number) {
    modify_item(table_of(number), item);
}

void DelAclItem(const char *condition, int number) {
    delete_items(table_of(number), condition);
}

void DelAclItemAll(int number) {
    delete_all_items(table_of(number));
}

void DelAclItemByMac(const char *mac, int number) {
    delete_items_of(table_of(number), mac);
}
