// Behaviour rules.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::behavior_rule {

using Record = BehaviorItem;

// clang-format off
inline constexpr Field fields[] = {
    NUMBER_FIELD(control_type, by_name),
    NUMBER_FIELD(ipcontrol, by_name),
    IP_GROUP_FIELD(by_name),
    NUMBER_FIELD(timecontrol, by_name),
    TIME_GROUP_FIELD(by_name),
    TEXT_FIELD(devmac, by_name),
    OWN_RANGE_FIELD(devstartip, by_name),
    OWN_RANGE_FIELD(devendip, by_name),
    ZERO_FIELD(behavior_type),
    TEXT_FIELD(behavior_info, by_name),
    OWN_WEEKDAYS_FIELD(by_name),
    OWN_TIME_FIELD(start_time, by_name),
    OWN_TIME_FIELD(end_time, by_name),
    NUMBER_FIELD(status, by_name),
    TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("behavior_rule", ROUTERDB_TABLE_BEHAVIOR);

}  // namespace routerdb::tables::behavior_rule
