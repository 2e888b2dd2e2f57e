// Behaviour rules.
#include "rules/tables/behavior_rule.h"

#include <syslog.h>

#include "build_profile.h"
#include "dhcp/host_name.h"
#include "rules/behavior_names.h"
#include "rules/client_ops.h"
#include "rules/derived.h"
#include "rules/list_builder.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::behavior_rule;

namespace {

constexpr TimeSpan time_span = RULE_TIME_SPAN(no_flag);
constexpr AddressRange address_range = RULE_ADDRESS_RANGE(sizeof(Record::devstartip));

static_assert(sizeof(Record::hostname) >= host_name_width);

void derive(References &references, void *record) {
    derive_address_range(address_range, references, record);
    derive_time_span(time_span, references, record);
    Record &rule = *static_cast<Record *>(record);
    references.host_names.find(rule.devmac, rule.hostname);
    append_behavior_names(references.catalogue, rule.behavior_info, {rule.behavior_names, sizeof(rule.behavior_names)},
                          {rule.behavior_names_en, sizeof(rule.behavior_names_en)});
}

/// Where the build profile leaves the program's state alone, under the program's own identity.
void log_addition(std::string_view info) {
    if (!build_profile.leaves_program_state) {
        openlog("AddBehaviortem", 0, 0);
    }
    syslog(LOG_INFO, "pinfo->behavior_info:%.*s", static_cast<int>(info.size()), info.data());
    if (!build_profile.leaves_program_state) {
        closelog();
    }
}

}  // namespace

int GetBehaviorItemListInServer(BehaviorItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql), derive);
}

void GetBehaviorItemList(BehaviorItemList *list) {
    list_items(table, list);
}

void GetBehaviorItem(int id, BehaviorItem *item) {
    get_item(table, id, item);
}

// The name is spelled so for all callers.
void AddBehaviortem(const BehaviorItem *item) {
    log_addition(field_text(item->behavior_info, sizeof(item->behavior_info)));
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
