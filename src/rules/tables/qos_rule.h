// QoS rules. Their own range of addresses stays beside that of an IP group.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::qos_rule {

using Record = QosItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, by_name),
    NUMBER_FIELD(control_type, by_name),
    TEXT_FIELD(devmac, by_name),
    NUMBER_FIELD(ipcontrol, by_name),
    IP_GROUP_FIELD(by_name),
    TEXT_FIELD(devstartip, by_name),
    TEXT_FIELD(devendip, by_name),
    NUMBER_FIELD(timecontrol, by_name),
    TIME_GROUP_FIELD(by_name),
    OWN_WEEKDAYS_FIELD(by_name),
    OWN_TIME_FIELD(start_time, by_name),
    OWN_TIME_FIELD(end_time, by_name),
    NUMBER_FIELD(bw_up, by_name),
    NUMBER_FIELD(bw_down, by_name),
    NUMBER_FIELD(bw_shared_mode, by_name),
    NUMBER_FIELD(status, by_name),
    TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("qos_rule", ROUTERDB_TABLE_QOS);

}  // namespace routerdb::tables::qos_rule
