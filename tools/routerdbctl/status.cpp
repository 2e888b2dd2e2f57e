#include "status.h"

#include <cstdarg>
#include <cstdio>

namespace ctl {

namespace {

bool quiet = false;

[[gnu::format(printf, 1, 0)]] void say(const char *format, std::va_list arguments) {
    std::fflush(stdout);
    std::fputs("routerdbctl: ", stderr);
    std::vfprintf(stderr, format, arguments);
    std::fputc('\n', stderr);
}

}  // namespace

Status fail(Status status, const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    say(format, arguments);
    va_end(arguments);
    return status;
}

void warn(const char *format, ...) {
    if (quiet) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    say(format, arguments);
    va_end(arguments);
}

void keep_quiet(bool is_quiet) {
    quiet = is_quiet;
}

}  // namespace ctl
