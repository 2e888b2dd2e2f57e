// The command line.
#pragma once

#include "settings.h"

namespace sqld {

enum class Wish { serve, help, version, none };

extern const char usage[];

/// Reads the command line.
/// @return none for one that cannot be followed, after the reason went to standard error
Wish read_options(int argc, char **argv, Settings &settings);

}  // namespace sqld
