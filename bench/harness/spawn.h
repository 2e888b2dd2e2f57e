// Starting programs.
#pragma once

#include <string>
#include <vector>

namespace bench {

/// Starts a program, whose standard streams are ours, and waits for it. Ends the process if the program fails.
void spawn(const std::vector<std::string> &command);

/// The same with its output as the result.
std::string output_of(const std::vector<std::string> &command);

/// A program that stands beside this one.
std::string beside(const char *name);

}  // namespace bench
