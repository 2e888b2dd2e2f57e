// URL filters.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::filter_url {

using Record = UrlFilterItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_TEXT_FIELD(url, 2),
    RULE_NUMBER_FIELD(timecontrol, 3),
    RULE_TIME_GROUP_FIELD(4),
    RULE_OWN_WEEKDAYS_FIELD(5),
    RULE_OWN_TIME_FIELD(start_time, 12),
    RULE_OWN_TIME_FIELD(end_time, 13),
    RULE_NUMBER_FIELD(status, 14),
    RULE_TEXT_FIELD(mark, 15),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("filter_url", ROUTERDB_TABLE_URL_FILTER).ordered_by("Id");

}  // namespace routerdb::tables::filter_url
