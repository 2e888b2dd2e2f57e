// Counting what an operation takes.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Runs the given variants of every operation, all if none is given: once to warm up and then between marks. Each marked
/// run has an output file of callgrind to itself, whose trigger is "operation/variant", and in a trace of system calls
/// it lies between two accesses of files of the names "begin:operation/variant" and "end:operation/variant". Processes
/// that it starts find "child,operation,,variant" in $BENCH_CHILD, which callgrind can make a part of their files' names.
void count(const Profiles &profiles, int variant_count, char **variants);

}  // namespace bench
