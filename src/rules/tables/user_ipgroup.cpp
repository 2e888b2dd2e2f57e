// IP groups, which other rules reference.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = IpGroupItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, by_name),
    TEXT(startip, by_name),
    TEXT(endip, by_name),
    TEXT(mark, by_name),
};
// clang-format on

constexpr RuleTable table = rule_table<Record>("user_ipgroup", ROUTERDB_TABLE_IP_GROUP, fields);

}  // namespace

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
