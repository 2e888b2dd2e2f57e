// Static DHCP bindings.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::dhcpserverstaticbind {

using Record = DhcpStaticItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_NUMBER_FIELD(devtype, 1),
    RULE_TEXT_FIELD(mac, 2),
    RULE_TEXT_FIELD(ip, 3),
    RULE_TEXT_FIELD(mark, 4),
};
// clang-format on

inline constexpr RuleTable table =
    rule_table<Record, fields>("dhcpserverstaticbind", ROUTERDB_TABLE_DHCP_STATIC).with_detailed_messages();

}  // namespace routerdb::tables::dhcpserverstaticbind
