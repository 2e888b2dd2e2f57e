// Commands for the shell.
#pragma once

namespace routerdb {

/// Formats a command and runs it with system(). The command's result is ignored; one that does not fit 255
/// characters is not run, since a cut command would do something else.
[[gnu::format(printf, 1, 2)]] void run_in_shell(const char *format, ...);

}  // namespace routerdb
