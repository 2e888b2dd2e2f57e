// The profile that the library under test is built in. A test that expects something else in each asks for the member
// that makes the difference.
#pragma once

#include "build_profile.h"

namespace support {

using routerdb::build_profile;

}  // namespace support
