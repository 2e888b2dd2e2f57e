// Domain-to-IP entries.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::domain_ip {

using Record = DomainIpItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_TEXT_FIELD(domain, 2),
    RULE_TEXT_FIELD(ip, 3),
    RULE_NUMBER_FIELD(status, 4),
    RULE_TEXT_FIELD(mark, 5),
};
// clang-format on

// Deliberate: deletes travel under the id of the IP and port filters.
inline constexpr RuleTable table =
    rule_table<Record, fields>("domain_ip", ROUTERDB_TABLE_DOMAIN_IP).deleting_under(ROUTERDB_TABLE_IP_FILTER);

}  // namespace routerdb::tables::domain_ip
