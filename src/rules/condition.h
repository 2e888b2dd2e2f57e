// Conditions that callers hand over.
#pragma once

#include <string_view>

namespace routerdb {

/// Whether a condition says which rows it means and nothing else: columns compared with texts between
/// quotes or with integers, "in" lists of these, joined by "or" and "and", with parentheses. A condition such as "1",
/// which means every row, does not.
bool is_plain_condition(std::string_view condition);

}  // namespace routerdb
