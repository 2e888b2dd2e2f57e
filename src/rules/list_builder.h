// From a query to a list of rule records, on the service's side.
#pragma once

#include "rules/rule_table.h"

namespace routerdb {

/// Fills a list with what a query on the main database gives.
/// @return no meaning
int build_item_list(const RuleTable &table, void *list, const char *sql);

}  // namespace routerdb
