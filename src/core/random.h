// The one way a random number is drawn.
#pragma once

namespace routerdb {

/// Reseeds rand() with the microseconds of the time of day and draws once: two calls in the same microsecond draw the
/// same number. Where the build profile leaves the program's state alone, draws from the kernel instead.
/// @return 0 to limit - 1
unsigned random_below(unsigned limit);

}  // namespace routerdb
