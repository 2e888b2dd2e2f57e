// Calls of all functions that a profile may make in a way of its own.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "profiles/library.h"

namespace profiles {

/// A call, and all that its caller sees of it: result, records, output, messages, locks, writes and commands.
struct Outcome {
    std::string call;
    std::string seen;
};

/// Makes the calls with arguments that follow from `random`.
std::vector<Outcome> make_calls(const Library &library, std::mt19937 &random);

}  // namespace profiles
