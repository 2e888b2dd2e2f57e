// Port forwardings. The record has its members in an order of its own.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::forword_ipport {

using Record = PortFwItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_TEXT_FIELD(devip, 2),
    RULE_NUMBER_FIELD(protocol, 3),
    RULE_NUMBER_FIELD(devinnerfromport, 4),
    RULE_NUMBER_FIELD(devinnertoport, 5),
    RULE_NUMBER_FIELD(devexternfromport, 6),
    RULE_NUMBER_FIELD(devexterntoport, 7),
    RULE_NUMBER_FIELD(wanid, 8),
    RULE_NUMBER_FIELD(status, 9),
    RULE_TEXT_FIELD(mark, 10),
};
// clang-format on

inline constexpr RuleTable table =
    rule_table<Record, fields>("forword_ipport", ROUTERDB_TABLE_PORT_FORWARD).ordered_by("Id");

}  // namespace routerdb::tables::forword_ipport
