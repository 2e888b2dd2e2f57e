// The three Wi-Fi access lists: one record, one list of fields, tables that differ in their number.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = AclItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    TEXT(mac, 2),
    NUMBER(status, 3),
    TEXT(mark, 4),
};
// clang-format on

constexpr RuleTable first_table = rule_table<Record>("wifi0acl", ROUTERDB_TABLE_ACL0, fields);

/// The table of an access list. One that does not exist has no id, and nothing is sent for it.
RuleTable table_of(int number) {
    constexpr std::size_t digit = sizeof("wifi") - 1;
    RuleTable table = first_table;
    if (number < 0 || number >= static_cast<int>(sizeof(acl_wifi_id) / sizeof(acl_wifi_id[0]))) {
        table.id = no_table;
    } else {
        table.id = static_cast<std::uint8_t>(acl_wifi_id[number]);
        table.name[digit] = static_cast<char>('0' + number);
    }
    table.delete_id = table.id;
    return table;
}

}  // namespace

int Get2GAclItemListInServer(AclItemList *list, const char *sql) {
    return build_item_list(first_table, list, or_empty(sql));
}

int Get5GAclItemListInServer(AclItemList *list, const char *sql) {
    return build_item_list(first_table, list, or_empty(sql));
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
