// MAC filters.
#include "rules/tables/filter_mac.h"

#include "dhcp/host_name.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::filter_mac;

namespace {

constexpr TimeSpan time_span = RULE_TIME_SPAN(no_flag);

static_assert(sizeof(Record::hostname) >= host_name_width);

void derive(References &references, void *record) {
    derive_time_span(time_span, references, record);
    Record &rule = *static_cast<Record *>(record);
    references.host_names.find(rule.devmac, rule.hostname);
}

}  // namespace

int GetMacFilterItemListInServer(MacFilterItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql), derive);
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
