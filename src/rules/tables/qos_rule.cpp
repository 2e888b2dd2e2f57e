// QoS rules. Their own range of addresses stays beside that of an IP group.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = QosItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, by_name),
    NUMBER(control_type, by_name),
    TEXT(devmac, by_name),
    NUMBER(ipcontrol, by_name),
    IP_GROUP_ID(by_name),
    TEXT(devstartip, by_name),
    TEXT(devendip, by_name),
    NUMBER(timecontrol, by_name),
    TIME_GROUP_ID(by_name),
    OWN_WEEKDAYS(by_name),
    OWN_TIME(start_time, by_name),
    OWN_TIME(end_time, by_name),
    NUMBER(bw_up, by_name),
    NUMBER(bw_down, by_name),
    NUMBER(bw_shared_mode, by_name),
    NUMBER(status, by_name),
    TEXT(mark, by_name),
};
// clang-format on

constexpr TimeSpan time_span = TIME_SPAN(no_flag);
constexpr AddressRange address_range = ADDRESS_RANGE(own_range_stays);

void derive(References &references, void *record) {
    derive_address_range(address_range, references, record);
    derive_time_span(time_span, references, record);
}

constexpr RuleTable table = rule_table<Record>("qos_rule", ROUTERDB_TABLE_QOS, fields).deriving(derive);

}  // namespace

int GetQosItemListInServer(QosItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetQosItemList(QosItemList *list) {
    list_items(table, list);
}

void GetQosItem(int id, QosItem *item) {
    get_item(table, id, item);
}

void AddQosItem(const QosItem *item) {
    add_item(table, item);
}

void ModifyQosItem(const QosItem *item) {
    modify_item(table, item);
}

void DelQosItem(const char *condition) {
    delete_items(table, condition);
}

// Deliberate: the kind of condition makes no difference.
void DelQosItemById(const char *condition, int /*kind*/) {
    delete_items(table, condition);
}
