// MAC filters.
#include "core/text.h"
#include "dhcp/host_name.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = MacFilterItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    TEXT(devmac, 2),
    NUMBER(timecontrol, 3),
    TIME_GROUP_ID(4),
    OWN_WEEKDAYS(5),
    OWN_TIME(start_time, 12),
    OWN_TIME(end_time, 13),
    NUMBER(status, 14),
    TEXT(mark, 15),
};
// clang-format on

constexpr TimeSpan time_span = TIME_SPAN(no_flag);

static_assert(sizeof(Record::hostname) >= host_name_width);

void derive(References &references, void *record) {
    derive_time_span(time_span, references, record);
    Record &rule = *static_cast<Record *>(record);
    references.host_names.find(rule.devmac, rule.hostname);
}

constexpr RuleTable table =
    rule_table<Record>("filter_mac", ROUTERDB_TABLE_MAC_FILTER, fields).with_detailed_messages().deriving(derive);

}  // namespace

int GetMacFilterItemListInServer(MacFilterItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetMacFilterItemList(MacFilterItemList *list) {
    list_items(table, list);
}

void GetMacFilterItem(int id, MacFilterItem *item) {
    get_item(table, id, item);
}

void AddMacFilterItem(const MacFilterItem *item) {
    add_item(table, item);
}

void ModifyMacFilterItem(const MacFilterItem *item) {
    modify_item(table, item);
}

void DelMacFilterItem(const char *condition) {
    delete_items(table, condition);
}

void DelMacFilterItemAll() {
    delete_all_items(table);
}

// Deliberate: the kind of condition makes no difference.
void DelMacFilterItemById(const char *condition, int /*kind*/) {
    delete_items(table, condition);
}
