#include "core/shell.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace routerdb {

void run_in_shell(const char *format, ...) {
    char command[256];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(command, sizeof(command), format, arguments);
    va_end(arguments);
    if (length < 0 || static_cast<unsigned>(length) >= sizeof(command)) {
        return;
    }
    // NOLINTNEXTLINE(cert-env33-c): the system's programs are reached through the shell
    [[maybe_unused]] const int result = system(command);
}

}  // namespace routerdb
