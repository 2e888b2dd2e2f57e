#include "question.h"

#include <unistd.h>

#include <cstdarg>
#include <cstdio>

namespace ctl {

Status confirm(const Invocation &invocation, const char *format, ...) {
    if (invocation.options.yes) {
        return Status::done;
    }
    if (isatty(STDIN_FILENO) == 0 || isatty(STDERR_FILENO) == 0) {
        return fail(Status::usage, "this cannot be taken back, and there is no terminal to ask on: say --yes");
    }
    std::fflush(stdout);
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
    std::fputs(" [y/N] ", stderr);
    const int answer = std::getchar();
    return answer == 'y' || answer == 'Y' ? Status::done : fail(Status::refused, "nothing was changed");
}

}  // namespace ctl
