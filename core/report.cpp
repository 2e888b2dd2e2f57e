#include "core/report.h"

#include <syslog.h>

#include <cstdio>

namespace routerdb {

// The format stays a literal in every call: the compiler checks it, and a syslog of the program's own sees it.
#define PRINT(stream, ...)                                                    \
    ((stream) == Stream::standard_output  ? std::printf(__VA_ARGS__)          \
     : (stream) == Stream::standard_error ? std::fprintf(stderr, __VA_ARGS__) \
     : (stream) == Stream::system_log     ? (syslog(LOG_ERR, __VA_ARGS__), 0) \
                                          : 0)

int report(Message message, const Failure &failure) {
    // "(null)" is what callers have always seen where there is no text, whichever C library prints it.
    const char *text = failure.text != nullptr ? failure.text : "(null)";
    switch (message.wording) {
        case Wording::cannot_open:
            return PRINT(message.stream, "cannot open %s!\n", failure.path);
        case Wording::cannot_open_code:
            return PRINT(message.stream, "cannot open %s, ErrorCode: %d!\n", failure.path, failure.code);
        case Wording::cannot_exec:
            return PRINT(message.stream, "cannot exec sql cmdline, Error: %s\n", text);
        case Wording::cannot_exec_no_message:
            return PRINT(message.stream, "cannot exec sql cmdline, Error: %s\n", "(null)");
        case Wording::cannot_prepare:
            return PRINT(message.stream, "cannot prepare sql cmdline, Error: %s\n", text);
        case Wording::busy:
            return PRINT(message.stream, "sql busy/locked cmdline, Error: %s\n", text);
        case Wording::error:
            return PRINT(message.stream, "Error: %s", text);
        case Wording::webserver_error:
            return PRINT(message.stream, "Webserver Error: %s", text);
    }
    return 0;
}

#undef PRINT

}  // namespace routerdb
