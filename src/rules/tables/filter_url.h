// URL filters.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::filter_url {

using Record = UrlFilterItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, 1),
    TEXT_FIELD(url, 2),
    NUMBER_FIELD(timecontrol, 3),
    TIME_GROUP_FIELD(4),
    OWN_WEEKDAYS_FIELD(5),
    OWN_TIME_FIELD(start_time, 12),
    OWN_TIME_FIELD(end_time, 13),
    NUMBER_FIELD(status, 14),
    TEXT_FIELD(mark, 15),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("filter_url", ROUTERDB_TABLE_URL_FILTER).ordered_by("Id");

}  // namespace routerdb::tables::filter_url
