// IP and port filters. The columns of the table stand in another order than those of insert and update.
#include "rules/tables/filter_ipport.h"

#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::filter_ipport;

namespace {

constexpr TimeSpan time_span = RULE_TIME_SPAN(no_flag);
constexpr AddressRange address_range = RULE_ADDRESS_RANGE(sizeof(Record::devstartip));

void derive(References &references, void *record) {
    derive_address_range(address_range, references, record);
    derive_time_span(time_span, references, record);
}

}  // namespace

int GetIpFilterItemListInServer(IpFilterItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql), derive);
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
