// The smart-QoS white list.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::smartqos_whitelist {

using Record = SmartQosItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(devmac, by_name),
    RULE_TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("smartqos_whitelist", ROUTERDB_TABLE_SMART_QOS);

}  // namespace routerdb::tables::smartqos_whitelist
