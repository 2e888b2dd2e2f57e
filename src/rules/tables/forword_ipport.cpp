// Port forwardings. The record has its members in an order of its own.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = PortFwItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    TEXT(devip, 2),
    NUMBER(protocol, 3),
    NUMBER(devinnerfromport, 4),
    NUMBER(devinnertoport, 5),
    NUMBER(devexternfromport, 6),
    NUMBER(devexterntoport, 7),
    NUMBER(wanid, 8),
    NUMBER(status, 9),
    TEXT(mark, 10),
};
// clang-format on

constexpr RuleTable table = rule_table<Record>("forword_ipport", ROUTERDB_TABLE_PORT_FORWARD, fields).ordered_by("Id");

}  // namespace

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
