// Counting what an operation takes.
#pragma once

#include "harness/operation.h"

namespace bench {

/// Runs a variant of an operation once to warm up and then between marks. Each marked run has an output file of
/// callgrind to itself, whose trigger is "title|variant", and in a trace of system calls it lies between two accesses
/// of files of the names "begin:title|variant" and "end:title|variant". Processes that it starts find
/// "child,title|variant" in $BENCH_CHILD, which callgrind can make a part of their files' names. All of this goes on in
/// a process of its own: what the allocator does depends on what was done before, which must be the same for all
/// variants.
void count_apart(const Profiles &profiles, const Operation &operation, Variant variant, const std::string &title);

/// Does so for the given variants of every operation, all if none is given.
/// @param which  "all", or "long" or "short" for these operations alone, which take about as much together
void count(const Profiles &profiles, std::string_view which, int variant_count, char **variants);

}  // namespace bench
