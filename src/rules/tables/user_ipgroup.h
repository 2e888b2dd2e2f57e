// IP groups, which other rules reference.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::user_ipgroup {

using Record = IpGroupItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, by_name),
    RULE_TEXT_FIELD(startip, by_name),
    RULE_TEXT_FIELD(endip, by_name),
    RULE_TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("user_ipgroup", ROUTERDB_TABLE_IP_GROUP);

}  // namespace routerdb::tables::user_ipgroup
