// IP and port filters. The columns of the table stand in another order than those of insert and update.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = IpFilterItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    NUMBER(ipcontrol, 2),
    IP_GROUP_ID(3),
    NUMBER(timecontrol, 9),
    TIME_GROUP_ID(10),
    OWN_RANGE(devstartip, 4),
    OWN_RANGE(devendip, 5),
    NUMBER(devfromport, 6),
    NUMBER(devtoport, 7),
    NUMBER(protocol, 8),
    OWN_WEEKDAYS(11),
    OWN_TIME(start_time, 18),
    OWN_TIME(end_time, 19),
    NUMBER(status, 20),
    TEXT(mark, 21),
};
// clang-format on

constexpr TimeSpan time_span = TIME_SPAN(no_flag);
constexpr AddressRange address_range = ADDRESS_RANGE(sizeof(Record::devstartip));

void derive(References &references, void *record) {
    derive_address_range(address_range, references, record);
    derive_time_span(time_span, references, record);
}

constexpr RuleTable table = rule_table<Record>("filter_ipport", ROUTERDB_TABLE_IP_FILTER, fields).deriving(derive);

}  // namespace

int GetIpFilterItemListInServer(IpFilterItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetIpFilterItemList(IpFilterItemList *list) {
    list_items(table, list);
}

void GetIpFilterItem(int id, IpFilterItem *item) {
    get_item(table, id, item);
}

void AddIpFilterItem(const IpFilterItem *item) {
    add_item(table, item);
}

void ModifyIpFilterItem(const IpFilterItem *item) {
    modify_item(table, item);
}

void DelIpFilterItem(const char *condition) {
    delete_items(table, condition);
}

// Deliberate: the kind of condition makes no difference.
void DelIpFilterItemById(const char *condition, int /*kind*/) {
    delete_items(table, condition);
}
