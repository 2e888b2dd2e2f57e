// The growing sleeps of one call.
#pragma once

#include <sqlite3.h>
#include <unistd.h>

#include <cstdint>

#include "core/report.h"

namespace routerdb {

/// Where a series of sleeps begins, before its first step.
enum class FirstDelay : std::uint8_t {
    microseconds_50,
    microseconds_150,
    random,  // 51 to 150 microseconds, drawn from rand() after reseeding it with the time of day
};

/// One series. All retries of a call share it: the n-th sleep lasts scale * (first delay + 5 n) microseconds.
class Backoff {
public:
    /// No series yet.
    Backoff() = default;

    /// Draws the first delay.
    explicit Backoff(FirstDelay first, useconds_t scale = 1, Stream busy_stream = Stream::nowhere);

    /// How long the next sleep lasts.
    useconds_t next_sleep() const;

    /// Sleeps for the next delay, then reports that `db` was busy, if this series does.
    void sleep(sqlite3 *db);

private:
    useconds_t delay_ = 0;
    useconds_t scale_ = 1;
    Stream busy_stream_ = Stream::nowhere;
};

}  // namespace routerdb
