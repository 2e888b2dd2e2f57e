// How instructions grow with the number of rows.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Counts some operations on tables of different sizes, as count_apart does, with titles such as "GetApDevList @ 5".
void count_curves(const Profiles &profiles);

}  // namespace bench
