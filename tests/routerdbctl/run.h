// routerdbctl as people run it.
#pragma once

#include <string>
#include <vector>

namespace support {

struct Result {
    int status;  // 128 and the signal's number if a signal has ended it
    std::string output;
    std::string error;
};

/// Runs the program to its end, with texts and no terminal at its three streams.
/// @param input  what it reads
Result run(std::vector<std::string> arguments, std::string input = "");

/// The lines of a text, without their ends.
std::vector<std::string> lines_of(const std::string &text);

}  // namespace support
