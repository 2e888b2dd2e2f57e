// When a rule holds: at its own times, or at those of the time group it references.
#pragma once

#include <sqlite3.h>

#include "rules/rule_table.h"

namespace routerdb {

/// Clears `group` and reads the time group of that id into it; without one it stays clear. A failed prepare is
/// written to standard output.
void find_time_group(sqlite3 *db, int id, TimeGroupItem &group);

/// Completes a record whose columns have been read: a referenced group is looked up and copied, and the flag set if
/// the record has one.
void settle_time_span(const TimeSpan &span, sqlite3 *db, void *record);

}  // namespace routerdb
