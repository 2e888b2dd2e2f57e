// Processor time of the variants.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Times every variant against the bare one with Google Benchmark: in each round the two take turns, and the result is
/// the median of the rounds' ratios.
/// @param argc  with `argv` the options of Google Benchmark, the first one skipped
/// @return exit status
int time(const Profiles &profiles, int argc, char **argv);

}  // namespace bench
