// Collections of identifiers, which stay empty.
#pragma once

#include <cstdint>

namespace routerdb {

/// Runs a query under the lock file and empties the collection that its rows were meant for.
/// @return 0 or -1
int empty_collection(std::uint32_t &count, const char *sql);

}  // namespace routerdb
