// Numbers at the start of texts.
#pragma once

#include <string_view>

namespace routerdb {

/// The number that atoi reads in a text, terminated or not; 0 for one that is no number.
int number_in(std::string_view text);

}  // namespace routerdb
