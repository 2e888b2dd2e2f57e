// User URLs.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables::user_urlinfo {

using Record = UserUrlItem;

// clang-format off
inline constexpr Field fields[] = {
    RULE_TEXT_FIELD(name, by_name),
    RULE_TEXT_FIELD(url, by_name),
    RULE_TEXT_FIELD(mark, by_name),
};
// clang-format on

inline constexpr RuleTable table = rule_table<Record, fields>("user_urlinfo", ROUTERDB_TABLE_USER_URL);

}  // namespace routerdb::tables::user_urlinfo
