// URL filters.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = UrlFilterItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    TEXT(url, 2),
    NUMBER(timecontrol, 3),
    TIME_GROUP_ID(4),
    OWN_WEEKDAYS(5),
    OWN_TIME(start_time, 12),
    OWN_TIME(end_time, 13),
    NUMBER(status, 14),
    TEXT(mark, 15),
};

// clang-format on

constexpr TimeSpan time_span = TIME_SPAN(offsetof(Record, time_valid));

void derive(References &references, void *record) {
    derive_time_span(time_span, references, record);
}

constexpr RuleTable table =
    rule_table<Record>("filter_url", ROUTERDB_TABLE_URL_FILTER, fields).ordered_by("Id").deriving(derive);

}  // namespace

int GetUrlFilterItemListInServer(UrlFilterItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
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
