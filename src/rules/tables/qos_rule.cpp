// QoS rules. Their own range of addresses stays beside that of an IP group.
#include "rules/tables/qos_rule.h"

#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::qos_rule;

namespace {

constexpr TimeSpan time_span = RULE_TIME_SPAN(no_flag);
constexpr AddressRange address_range = RULE_ADDRESS_RANGE(own_range_stays);

void derive(References &references, void *record) {
    derive_address_range(address_range, references, record);
    derive_time_span(time_span, references, record);
}

}  // namespace

int GetQosItemListInServer(QosItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql), derive);
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
