// How the wrapped functions pass a call on.
#pragma once

#include <cerrno>
#include <utility>

#include "support/wrapped_calls.h"

namespace support {

/// Whoever watches the calls of this thread.
extern thread_local WrappedCalls *watching;

/// Makes a call unless it has to fail. What happens meanwhile is not the library's.
template <typename Result, typename Call>
Result pass(const char *function, Result failure, Call call) {
    WrappedCalls *const watcher = std::exchange(watching, nullptr);
    if (watcher == nullptr) {
        return call();
    }
    const bool fails = watcher->enter(function);
    const Result result = fails ? failure : call();
    const int error = errno;
    watcher->leave(function);
    watching = watcher;
    errno = error;
    return result;
}

}  // namespace support
