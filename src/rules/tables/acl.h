// The three Wi-Fi access lists: one record, one list of fields, tables that differ in their number.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables {

namespace acl {

using Record = AclItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, 1),
    RULE_TEXT_FIELD(mac, 2),
    RULE_NUMBER_FIELD(status, 3),
    RULE_TEXT_FIELD(mark, 4),
};
// clang-format on

}  // namespace acl

namespace wifi0acl {
inline constexpr RuleTable table = rule_table<AclItem, acl::fields>("wifi0acl", ROUTERDB_TABLE_ACL0);
}
namespace wifi1acl {
inline constexpr RuleTable table = rule_table<AclItem, acl::fields>("wifi1acl", ROUTERDB_TABLE_ACL1);
}
namespace wifi2acl {
inline constexpr RuleTable table = rule_table<AclItem, acl::fields>("wifi2acl", ROUTERDB_TABLE_ACL2);
}

}  // namespace routerdb::tables
