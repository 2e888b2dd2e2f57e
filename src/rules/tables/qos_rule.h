// QoS rules. Their own range of addresses stays beside that of an IP group.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::qos_rule {

using Record = QosItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, by_name),
    RULE_NUMBER_FIELD(control_type, by_name),
    RULE_TEXT_FIELD(devmac, by_name),
    RULE_NUMBER_FIELD(ipcontrol, by_name),
    RULE_IP_GROUP_FIELD(by_name),
    RULE_TEXT_FIELD(devstartip, by_name),
    RULE_TEXT_FIELD(devendip, by_name),
    RULE_NUMBER_FIELD(timecontrol, by_name),
    RULE_TIME_GROUP_FIELD(by_name),
    RULE_OWN_WEEKDAYS_FIELD(by_name),
    RULE_OWN_TIME_FIELD(start_time, by_name),
    RULE_OWN_TIME_FIELD(end_time, by_name),
    RULE_NUMBER_FIELD(bw_up, by_name),
    RULE_NUMBER_FIELD(bw_down, by_name),
    RULE_NUMBER_FIELD(bw_shared_mode, by_name),
    RULE_NUMBER_FIELD(status, by_name),
    RULE_TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("qos_rule", ROUTERDB_TABLE_QOS);

}  // namespace routerdb::tables::qos_rule
