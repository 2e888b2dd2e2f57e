// Groups that rules reference, and what the records of the rules hold of them: the same in several tables, at other
// places.
#pragma once

#include "rules/golden/samples.h"

namespace golden {

/// Every way in which a rule comes by its times, and by its range of addresses; nothing for a table without groups.
std::vector<Built> with_times(const Table &table);
std::vector<Built> with_ranges(const Table &table);

}  // namespace golden
