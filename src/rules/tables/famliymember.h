// Family members.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::famliymember {

using Record = FamliyMemberItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_TEXT_FIELD(mac, 2),
    RULE_NUMBER_FIELD(devtype, 3),
    RULE_TEXT_FIELD(mark, 4),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("famliymember", ROUTERDB_TABLE_FAMLIY_MEMBER);

}  // namespace routerdb::tables::famliymember
