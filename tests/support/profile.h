// The profile that the library under test is built in. A test that expects something else in each asks for the member
// that makes the difference.
#pragma once

#include <string>

#include "build_profile.h"

namespace support {

using routerdb::build_profile;

/// A value that a caller hands over, as it stands between the quotes of a statement.
inline std::string as_value(const std::string &value) {
    std::string text;
    for (const char letter : value) {
        text += letter == '\'' && build_profile.doubles_quotes ? std::string("''") : std::string(1, letter);
    }
    return text;
}

}  // namespace support
