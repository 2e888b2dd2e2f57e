// Behaviour rules.
#include <syslog.h>

#include "core/text.h"
#include "dhcp/host_name.h"
#include "rules/behavior_names.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = BehaviorItem;

// clang-format off
constexpr Field fields[] = {
    NUMBER(control_type, by_name),
    NUMBER(ipcontrol, by_name),
    IP_GROUP_ID(by_name),
    NUMBER(timecontrol, by_name),
    TIME_GROUP_ID(by_name),
    TEXT(devmac, by_name),
    OWN_RANGE(devstartip, by_name),
    OWN_RANGE(devendip, by_name),
    ZERO(behavior_type),
    TEXT(behavior_info, by_name),
    OWN_WEEKDAYS(by_name),
    OWN_TIME(start_time, by_name),
    OWN_TIME(end_time, by_name),
    NUMBER(status, by_name),
    TEXT(mark, by_name),
};
// clang-format on

constexpr TimeSpan time_span = TIME_SPAN(no_flag);
constexpr AddressRange address_range = ADDRESS_RANGE(sizeof(Record::devstartip));

static_assert(sizeof(Record::hostname) >= host_name_width);

void derive(References &references, void *record) {
    derive_address_range(address_range, references, record);
    derive_time_span(time_span, references, record);
    Record &rule = *static_cast<Record *>(record);
    references.host_names.find(rule.devmac, rule.hostname);
    append_behavior_names(references.catalogue, rule.behavior_info, {rule.behavior_names, sizeof(rule.behavior_names)},
                          {rule.behavior_names_en, sizeof(rule.behavior_names_en)});
}

constexpr RuleTable table = rule_table<Record>("behavior_rule", ROUTERDB_TABLE_BEHAVIOR, fields).deriving(derive);

}  // namespace

int GetBehaviorItemListInServer(BehaviorItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetBehaviorItemList(BehaviorItemList *list) {
    list_items(table, list);
}

void GetBehaviorItem(int id, BehaviorItem *item) {
    get_item(table, id, item);
}

// The name is spelled so for all callers.
void AddBehaviortem(const BehaviorItem *item) {
    openlog("AddBehaviortem", 0, 0);
    const std::string_view info = field_text(item->behavior_info, sizeof(item->behavior_info));
    syslog(LOG_INFO, "pinfo->behavior_info:%.*s", static_cast<int>(info.size()), info.data());
    closelog();
    add_item(table, item);
}

void ModifyBehaviorItem(const BehaviorItem *item) {
    modify_item(table, item);
}

void DelBehaviorItem(const char *condition) {
    delete_items(table, condition);
}

// Deliberate: the kind of condition makes no difference.
void DelBehaviorItemById(const char *condition, int /*kind*/) {
    delete_items(table, condition);
}
