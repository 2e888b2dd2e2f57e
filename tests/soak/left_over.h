// What a process holds, and what a call that failed may have left of it.
#pragma once

#include <poll.h>
#include <sqlite3.h>

#include <array>
#include <string>

#include "core/holdings.h"
#include "soak/calls/calls.h"
#include "support/profile.h"

namespace soak {

struct Held {
    int descriptors;
    sqlite3_int64 memory;
};

/// Of descriptors up to 255, without standard input, which the exact profile may close. Nothing is opened for it, so
/// that it can be asked where nothing can be opened.
inline int open_descriptors() {
    std::array<pollfd, 255> descriptors{};
    for (std::size_t i = 0; i < descriptors.size(); ++i) {
        descriptors[i].fd = static_cast<int>(i) + 1;
    }
    poll(descriptors.data(), descriptors.size(), 0);
    int open = 0;
    for (const pollfd &descriptor : descriptors) {
        open += (descriptor.revents & POLLNVAL) == 0 ? 1 : 0;
    }
    return open;
}

inline Held held_now() {
    return {open_descriptors(), sqlite3_memory_used()};
}

/// Where a connection to each database is kept, what the process holds beside them stays the same over all calls.
inline constexpr int kept_descriptors = support::build_profile.keeps_connection ? 2 : 0;
inline constexpr sqlite3_int64 kept_memory = support::build_profile.keeps_connection ? 320 * 1024 : 0;

/// At most what a connection takes that SQLite could not open and that the exact profile abandons.
inline constexpr sqlite3_int64 abandoned_memory = 2048;

/// What should not be left of a call whose process held so much before and holds so much now; empty if nothing is.
inline std::string left_over(const Call &call, const Held &before, const Held &now) {
    const int descriptors = now.descriptors - before.descriptors;
    const sqlite3_int64 memory = now.memory - before.memory;
    const Left left = support::build_profile.closes_its_own ? Left{} : call.left;
    const Left left_unopened = support::build_profile.closes_its_own ? Left{} : call.left_without_databases;
    const bool promised = descriptors >= 0 && descriptors <= left.streams + kept_descriptors;
    const bool released = memory >= 0 && memory <= kept_memory + left_unopened.connections * abandoned_memory;
    return std::string(mutex_is_free() ? "" : ", the mutex is held") +
           (promised ? "" : ", descriptors left: " + std::to_string(descriptors)) +
           (released ? "" : ", bytes of SQLite left: " + std::to_string(memory));
}

}  // namespace soak
