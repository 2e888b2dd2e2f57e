// Commands for the shell.
#pragma once

#include <cstddef>

namespace routerdb {

/// Room that a command has unless said otherwise, its terminator included.
inline constexpr std::size_t command_size = 256;

/// Formats a command and runs it with system(). The command's result is ignored; one that does not fit `size` bytes is
/// not run, since a cut command would do something else.
/// @param size  command_size at most
[[gnu::format(printf, 2, 3)]] void run_in_shell(std::size_t size, const char *format, ...);

}  // namespace routerdb
