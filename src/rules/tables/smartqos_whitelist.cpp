// The smart-QoS white list.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = SmartQosItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(devmac, by_name),
    TEXT(mark, by_name),
};
// clang-format on

constexpr RuleTable table = rule_table<Record>("smartqos_whitelist", ROUTERDB_TABLE_SMART_QOS, fields);

}  // namespace

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
