// The variants agree, or nothing is measured.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Runs every variant of every operation and compares what it leaves behind, byte for byte, with what the bare one
/// does. Differences are told on standard error.
/// @return whether there is none
bool verify(const Profiles &profiles);

}  // namespace bench
