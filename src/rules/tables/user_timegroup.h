// Time groups, which other rules reference.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::user_timegroup {

using Record = TimeGroupItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_WEEKDAYS_FIELD(2),
    RULE_TEXT_FIELD(start_time, 9),
    RULE_TEXT_FIELD(end_time, 10),
    RULE_TEXT_FIELD(mark, 11),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("user_timegroup", ROUTERDB_TABLE_TIME_GROUP);

}  // namespace routerdb::tables::user_timegroup
