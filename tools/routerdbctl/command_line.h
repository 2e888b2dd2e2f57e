// The command line.
#pragma once

#include "commands.h"

namespace ctl {

/// An option as it is typed and explained.
struct OptionText {
    const char *name;
    const char *argument;  // null for none
    const char *help;
    std::uint32_t bit;  // of the commands that take it; 0 for all of them
    char letter;        // '\0' for none
};

extern const OptionText option_texts[];
extern const OptionText *const option_texts_end;

/// Reads all of it.
/// @return done, or what fail() has said
Status read_command_line(int argc, char **argv, Invocation &invocation, const Command *&command);

/// Finds a command by its words, or their first letters.
/// @param count  how many words there are; receives how many make the command
Status find_command(char **words, int &count, const Command *&command);

}  // namespace ctl
