// What a check of the doctor says: how things are, and what to do.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>

namespace ctl {

enum class Health : std::uint8_t { ok, doubtful, bad };

/// Of one check. All of it lies in the object itself, for it is written in one process and read in another.
class Report {
public:
    /// What it is until the check says something: bad, for a check that says nothing has not come to its end.
    [[gnu::format(printf, 3, 4)]] void begin(const char *advice, const char *format, ...);

    /// What is worse takes the place of what has been said before, what is as bad is added to it, and what is better
    /// left out. The first advice holds.
    [[gnu::format(printf, 2, 3)]] void ok(const char *format, ...);
    [[gnu::format(printf, 3, 4)]] void warn(const char *advice, const char *format, ...);
    [[gnu::format(printf, 3, 4)]] void fail(const char *advice, const char *format, ...);

    Health health() const { return health_; }
    const char *found() const { return found_; }
    const char *advice() const { return advice_; }

    /// Whether nothing has been said yet.
    bool is_pending() const { return is_pending_; }

private:
    [[gnu::format(printf, 4, 0)]] void add(Health health, const char *advice, const char *format,
                                           std::va_list arguments);
    void start(Health health, const char *advice);

    Health health_;
    bool is_pending_;
    bool is_full_;
    std::size_t length_;
    char found_[800];
    char advice_[200];
};

}  // namespace ctl
