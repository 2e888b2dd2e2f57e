// Counting what an operation takes.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Runs the given variants of every operation, all if none is given: once to warm up and once between marks. The second
/// run has an output file of callgrind to itself, whose trigger is "operation/variant", and in a trace of system calls
/// it lies between two accesses of files of the names "begin:operation/variant" and "end:operation/variant".
void count(const Profiles &profiles, int variant_count, char **variants);

}  // namespace bench
