// Behaviour rules.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::behavior_rule {

using Record = BehaviorItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_NUMBER_FIELD(control_type, by_name),
    RULE_NUMBER_FIELD(ipcontrol, by_name),
    RULE_IP_GROUP_FIELD(by_name),
    RULE_NUMBER_FIELD(timecontrol, by_name),
    RULE_TIME_GROUP_FIELD(by_name),
    RULE_TEXT_FIELD(devmac, by_name),
    RULE_OWN_RANGE_FIELD(devstartip, by_name),
    RULE_OWN_RANGE_FIELD(devendip, by_name),
    RULE_ZERO_FIELD(behavior_type),
    RULE_TEXT_FIELD(behavior_info, by_name),
    RULE_OWN_WEEKDAYS_FIELD(by_name),
    RULE_OWN_TIME_FIELD(start_time, by_name),
    RULE_OWN_TIME_FIELD(end_time, by_name),
    RULE_NUMBER_FIELD(status, by_name),
    RULE_TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("behavior_rule", ROUTERDB_TABLE_BEHAVIOR);

}  // namespace routerdb::tables::behavior_rule
