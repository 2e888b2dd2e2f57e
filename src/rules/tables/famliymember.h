// Family members.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::famliymember {

using Record = FamliyMemberItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, 1),
    TEXT_FIELD(mac, 2),
    NUMBER_FIELD(devtype, 3),
    TEXT_FIELD(mark, 4),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("famliymember", ROUTERDB_TABLE_FAMLIY_MEMBER);

}  // namespace routerdb::tables::famliymember
