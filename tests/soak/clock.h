// The time of day of this process.
#pragma once

namespace soak {

/// From now on it goes an hour back with each look, or is the real one again.
void set_clock_back(bool back);

}  // namespace soak
