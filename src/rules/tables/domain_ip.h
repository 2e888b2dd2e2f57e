// Domain-to-IP entries.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::domain_ip {

using Record = DomainIpItem;

// clang-format off
inline constexpr Field fields[] = {
    TEXT_FIELD(name, 1),
    TEXT_FIELD(domain, 2),
    TEXT_FIELD(ip, 3),
    NUMBER_FIELD(status, 4),
    TEXT_FIELD(mark, 5),
};
// clang-format on

// Deliberate: deletes travel under the id of the IP and port filters.
inline constexpr RuleTable table =
    rule_table<Record, fields>("domain_ip", ROUTERDB_TABLE_DOMAIN_IP).deleting_under(ROUTERDB_TABLE_IP_FILTER);

}  // namespace routerdb::tables::domain_ip
