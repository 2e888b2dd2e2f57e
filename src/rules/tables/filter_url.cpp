// URL filters.
#include "rules/tables/filter_url.h"

#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::filter_url;

namespace {

constexpr TimeSpan time_span = RULE_TIME_SPAN(offsetof(Record, time_valid));

void derive(References &references, void *record) {
    derive_time_span(time_span, references, record);
}

}  // namespace

int GetUrlFilterItemListInServer(UrlFilterItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql), derive);
}

void GetUrlFilterItemList(UrlFilterItemList *list) {
    list_items(table, list);
}

void GetUrlFilterItem(int id, UrlFilterItem *item) {
    get_item(table, id, item);
}

void AddUrlFilterItem(const UrlFilterItem *item) {
    add_item(table, item);
}

void ModifyUrlFilterItem(const UrlFilterItem *item) {
    modify_item(table, item);
}

void DelUrlFilterItem(const char *condition) {
    delete_items(table, condition);
}

// Deliberate: the kind of condition makes no difference.
void DelUrlFilterItemById(const char *condition, int /*kind*/) {
    delete_items(table, condition);
}
