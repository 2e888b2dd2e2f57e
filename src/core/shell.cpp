#include "core/shell.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "core/call_errno.h"

namespace routerdb {

void run_in_shell(std::size_t size, const char *format, ...) {
    char command[command_size];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(command, size, format, arguments);
    va_end(arguments);
    if (length < 0 || static_cast<std::size_t>(length) >= size) {
        return;
    }
    const CallErrno untold;  // what becomes of a command is not looked at
    // NOLINTNEXTLINE(cert-env33-c): the system's programs are reached through the shell
    [[maybe_unused]] const int result = system(command);
}

}  // namespace routerdb
