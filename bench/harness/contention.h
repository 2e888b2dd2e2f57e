// Processes that write at the same time.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Lets 1 to 16 processes update a row for a second each: with the library in either profile, whose writers queue for
/// the lock file, and with SQLite's own busy timeout. Writes a line for each to a file: variant, processes, updates in
/// a second, longest wait in milliseconds.
void contend(const Profiles &profiles, const char *path);

}  // namespace bench
