// The list of access points as JSON.
#pragma once

#include "apinventory/paging.h"

namespace routerdb {

/// Prints one page and the totals.
void print_page(const PageRequest &request);

}  // namespace routerdb
