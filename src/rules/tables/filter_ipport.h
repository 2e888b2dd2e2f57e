// IP and port filters. The columns of the table stand in another order than those of insert and update.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::filter_ipport {

using Record = IpFilterItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, 1),
    NUMBER_FIELD(ipcontrol, 2),
    IP_GROUP_FIELD(3),
    NUMBER_FIELD(timecontrol, 9),
    TIME_GROUP_FIELD(10),
    OWN_RANGE_FIELD(devstartip, 4),
    OWN_RANGE_FIELD(devendip, 5),
    NUMBER_FIELD(devfromport, 6),
    NUMBER_FIELD(devtoport, 7),
    NUMBER_FIELD(protocol, 8),
    OWN_WEEKDAYS_FIELD(11),
    OWN_TIME_FIELD(start_time, 18),
    OWN_TIME_FIELD(end_time, 19),
    NUMBER_FIELD(status, 20),
    TEXT_FIELD(mark, 21),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("filter_ipport", ROUTERDB_TABLE_IP_FILTER);

}  // namespace routerdb::tables::filter_ipport
