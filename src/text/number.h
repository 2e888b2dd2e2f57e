// Numbers at the start of texts.
#pragma once

#include <string_view>

namespace routerdb {

/// The number that atoi reads in a text; 0 for one that is no number. Where the build profile tells failures in errno,
/// one that is beyond all numbers leaves no ERANGE there.
int to_number(const char *text);

/// The same for a text that need not be terminated.
int number_in(std::string_view text);

}  // namespace routerdb
