// Between the service and one of its workers: requests with the connections that they came from, and what became of
// them.
#pragma once

#include <cstddef>

#include "request.h"

namespace sqld {

/// What a worker says.
struct Report {
    enum Kind : unsigned char {
        answered,
        refused,
        waits,  // for a client that does not take its reply at once: it goes on sending, and serves no other
    };
    Kind kind;
    bool is_last;  // the worker ends
};

/// Both ends of a channel whose messages stay whole.
/// @return whether there is one
bool make_channel(int (&ends)[2]);

/// Hands over a request of so many bytes and its connection, which the caller goes on owning as well. Does not wait.
bool hand_over(int channel, int connection, const Request &request, std::size_t size);

/// Waits for a request.
/// @return its connection; -1 when the other end has gone
int take_over(int channel, Request &request);

/// Says something to the service.
/// @return whether it will hear it
bool say(int channel, Report report);

enum class Heard { report, nothing, end };

/// Listens without waiting.
Heard hear(int channel, Report &report);

}  // namespace sqld
