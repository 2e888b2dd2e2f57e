// What the library exports, as its list of exports says.
#pragma once

#include <string>
#include <vector>

namespace support {

/// Those names that a regular expression matches as a whole.
std::vector<std::string> exported_names(const std::string &expression);

}  // namespace support
