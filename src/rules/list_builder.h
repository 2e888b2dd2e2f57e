// From a query to a list of rule records, on the service's side.
#pragma once

#include "rules/rule_table.h"

namespace routerdb {

class References;

/// Fills the members of a record that are no columns.
using Derive = void (*)(References &references, void *record);

/// Fills a list with what a query on the main database gives.
/// @param derive  null if there is nothing to derive
/// @return no meaning
int build_item_list(const RuleTable &table, void *list, const char *sql, Derive derive = nullptr);

}  // namespace routerdb
