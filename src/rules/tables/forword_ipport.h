// Port forwardings. The record has its members in an order of its own.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::forword_ipport {

using Record = PortFwItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, 1),
    TEXT_FIELD(devip, 2),
    NUMBER_FIELD(protocol, 3),
    NUMBER_FIELD(devinnerfromport, 4),
    NUMBER_FIELD(devinnertoport, 5),
    NUMBER_FIELD(devexternfromport, 6),
    NUMBER_FIELD(devexterntoport, 7),
    NUMBER_FIELD(wanid, 8),
    NUMBER_FIELD(status, 9),
    TEXT_FIELD(mark, 10),
};
// clang-format on

inline constexpr RuleTable table =
    rule_table<Record, fields>("forword_ipport", ROUTERDB_TABLE_PORT_FORWARD).ordered_by("Id");

}  // namespace routerdb::tables::forword_ipport
