// A process that serves requests, one after the other.
#pragma once

#include "settings.h"

namespace sqld {

/// Serves what comes through the channel until the other end goes, so many requests are served, or the process has
/// grown: the library may keep memory and descriptors of what it has done.
[[noreturn]] void work(int channel, unsigned requests, const Settings &settings);

}  // namespace sqld
