// IP and port filters. The columns of the table stand in another order than those of insert and update.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::filter_ipport {

using Record = IpFilterItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_NUMBER_FIELD(ipcontrol, 2),
    RULE_IP_GROUP_FIELD(3),
    RULE_NUMBER_FIELD(timecontrol, 9),
    RULE_TIME_GROUP_FIELD(10),
    RULE_OWN_RANGE_FIELD(devstartip, 4),
    RULE_OWN_RANGE_FIELD(devendip, 5),
    RULE_NUMBER_FIELD(devfromport, 6),
    RULE_NUMBER_FIELD(devtoport, 7),
    RULE_NUMBER_FIELD(protocol, 8),
    RULE_OWN_WEEKDAYS_FIELD(11),
    RULE_OWN_TIME_FIELD(start_time, 18),
    RULE_OWN_TIME_FIELD(end_time, 19),
    RULE_NUMBER_FIELD(status, 20),
    RULE_TEXT_FIELD(mark, 21),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("filter_ipport", ROUTERDB_TABLE_IP_FILTER);

}  // namespace routerdb::tables::filter_ipport
