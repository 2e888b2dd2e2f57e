// Does not compile: thirty-three columns. The assertions before it hold.
#include <string_view>

#include "rules/rule_table.h"

namespace {

using namespace routerdb;

using Record = TimeGroupItem;

// clang-format off
constexpr Field fields_of_32[] = {
    RULE_TEXT_FIELD(name, by_name),
    RULE_WEEKDAYS_FIELD(by_name), RULE_WEEKDAYS_FIELD(by_name), RULE_WEEKDAYS_FIELD(by_name), RULE_WEEKDAYS_FIELD(by_name),
    RULE_TEXT_FIELD(start_time, by_name),
    RULE_TEXT_FIELD(end_time, by_name),
    RULE_TEXT_FIELD(mark, by_name),
};
constexpr Field fields_of_33[] = {
    RULE_TEXT_FIELD(name, by_name),
    RULE_WEEKDAYS_FIELD(by_name), RULE_WEEKDAYS_FIELD(by_name), RULE_WEEKDAYS_FIELD(by_name), RULE_WEEKDAYS_FIELD(by_name),
    RULE_TEXT_FIELD(start_time, by_name),
    RULE_TEXT_FIELD(end_time, by_name),
    RULE_TEXT_FIELD(mark, by_name),
    RULE_ZERO_FIELD(behavior_type),
};
// clang-format on

constexpr RuleTable largest = rule_table<Record, fields_of_32>("largest", 1).ordered_by("No");
static_assert(std::string_view(largest.order_column) == "No", "a table is ordered by another column than it says");

[[maybe_unused]] constexpr RuleTable too_large = rule_table<Record, fields_of_33>("too_large", 2);

}  // namespace
