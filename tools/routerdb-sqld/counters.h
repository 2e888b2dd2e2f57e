// What the service tells of its work.
#pragma once

#include <cstdint>

namespace sqld {

struct Counters {
    unsigned long requests = 0;  // that came whole
    unsigned long refused = 0;
    unsigned long timed_out = 0;
    std::int64_t longest_wait_ms = 0;  // of a client, until its request was being served

    void note_wait(std::int64_t wait_ms) { longest_wait_ms = wait_ms > longest_wait_ms ? wait_ms : longest_wait_ms; }
};

}  // namespace sqld
