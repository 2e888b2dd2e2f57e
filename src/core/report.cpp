#include "core/report.h"

#include <syslog.h>

#include <cstdio>

namespace routerdb {

// The format stays a literal in every call: the compiler checks it, and a syslog of the program's own sees it.
#define PRINT(...)                                                              \
    (file != nullptr                        ? std::fprintf(file, __VA_ARGS__)   \
     : message.stream == Stream::system_log ? (syslog(LOG_ERR, __VA_ARGS__), 0) \
                                            : 0)

namespace {

/// Null for a stream that is no file.
FILE *file_of(Stream stream) {
    return stream == Stream::standard_output ? stdout : stream == Stream::standard_error ? stderr : nullptr;
}

}  // namespace

int report(Message message, const Failure &failure) {
    FILE *const file = file_of(message.stream);
    // "(null)" is what callers have always seen where there is no text, whichever C library prints it.
    const bool has_text = failure.text != nullptr && message.wording != Wording::cannot_exec_no_message;
    const char *text = has_text ? failure.text : "(null)";
    switch (message.wording) {
        case Wording::cannot_open:
            return PRINT("cannot open %s!\n", failure.path);
        case Wording::cannot_open_code:
            return PRINT("cannot open %s, ErrorCode: %d!\n", failure.path, failure.code);
        case Wording::cannot_exec:
        case Wording::cannot_exec_no_message:
            return PRINT("cannot exec sql cmdline, Error: %s\n", text);
        case Wording::cannot_prepare:
            return PRINT("cannot prepare sql cmdline, Error: %s\n", text);
        case Wording::busy:
            return PRINT("sql busy/locked cmdline, Error: %s\n", text);
        case Wording::error:
            return PRINT("Error: %s", text);
        case Wording::webserver_error:
            return PRINT("Webserver Error: %s", text);
    }
    return 0;
}

#undef PRINT

}  // namespace routerdb
