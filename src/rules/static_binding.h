// Static DHCP bindings: no two rows share an address.
#pragma once

#include "rules/rule_table.h"

namespace routerdb {

/// Results of the operations that write a binding.
enum : int { no_clash = 0, ip_taken = 1, mac_taken = 2 };

/// Asks the service whether a row has one of the addresses. Without an answer there is none.
int clash_of_new_binding(const RuleTable &table, const DhcpStaticItem &item);

/// Asks the service whether a row other than the item's own has one of the addresses.
int clash_of_changed_binding(const RuleTable &table, const DhcpStaticItem &item);

}  // namespace routerdb
