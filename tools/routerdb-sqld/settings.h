// What the command line sets.
#pragma once

#include <sys/types.h>

namespace sqld {

/// Somebody who is not named.
inline constexpr unsigned nobody = static_cast<unsigned>(-1);

struct Settings {
    bool may_change_schema = false;  // a request to execute
    bool forks = false;              // a process for each request instead of workers
    unsigned workers = 1;            // started in advance; the command line knows the processors
    unsigned request_seconds = 8;    // for a request in all, below the ten seconds that clients wait
    unsigned memory_mib = 64;        // of a process that serves, beside the room for a list
    unsigned rows = 128;             // of a list, the capacity of a client's
    unsigned socket_group = nobody;  // who may connect beside the owner
    const char *user = nullptr;      // whose rights it runs with; null for those it was started with
};

}  // namespace sqld
