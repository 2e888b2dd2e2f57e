// The growing sleeps of one call, and how many of them it takes.
#pragma once

#include <sqlite3.h>
#include <unistd.h>

#include <cstdint>
#include <type_traits>

#include "build_profile.h"
#include "core/report.h"

namespace routerdb {

/// One that has no end.
struct EndlessPatience {
    static constexpr bool spend(int /*code*/, useconds_t /*sleep*/) { return true; }
};

/// One that ends: the microseconds that are left for sleeping. What the attempts themselves take does not count.
struct Patience {
    useconds_t busy = 60'000'000;  // and locked
    useconds_t io_error = 30'000'000;

    /// @return whether one more sleep after `code` is left, which then is spent
    bool spend(int code, useconds_t sleep) {
        useconds_t &left = (code & 0xff) == SQLITE_IOERR ? io_error : busy;
        const bool enough = sleep <= left;
        left -= enough ? sleep : 0;
        return enough;
    }
};

using CallPatience = std::conditional_t<build_profile.limits_waiting, Patience, EndlessPatience>;

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

    /// What is left of it for all retries of the call.
    CallPatience &patience() { return patience_; }

private:
    useconds_t delay_ = 0;
    useconds_t scale_ = 1;
    Stream busy_stream_ = Stream::nowhere;
    CallPatience patience_{};
};

}  // namespace routerdb
