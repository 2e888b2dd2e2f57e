// Time groups, which other rules reference.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::user_timegroup {

using Record = TimeGroupItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, 1),
    WEEKDAYS_FIELD(2),
    TEXT_FIELD(start_time, 9),
    TEXT_FIELD(end_time, 10),
    TEXT_FIELD(mark, 11),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("user_timegroup", ROUTERDB_TABLE_TIME_GROUP);

}  // namespace routerdb::tables::user_timegroup
