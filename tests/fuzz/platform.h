// The wrapped calls of the platform, as the driver sees them.
#pragma once

#include <string>

namespace fuzz::platform {

/// Begins to watch the calls of this thread.
void watch();

/// Ends that, and looks at what is left.
void unwatch();

}  // namespace fuzz::platform
