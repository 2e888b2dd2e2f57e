// How a function reaches its database, and what it says when it cannot.
#pragma once

#include <cstdint>

#include "build_profile.h"
#include "core/backoff.h"
#include "core/confinement.h"
#include "core/connection.h"
#include "core/report.h"

namespace routerdb {

enum class Guard : std::uint8_t { none, lock_file_if_there, lock_file, mutex_and_lock_file };

/// When the first delay is drawn: callers that put their own rand() or gettimeofday() in front see the difference.
enum class Draw : std::uint8_t { before_opening_lock_file, after_opening_lock_file };

/// What becomes of a connection that SQLite could not open, unless the build profile closes all of them.
enum class FailedHandle : std::uint8_t { closed, abandoned };

struct ReadProfile;

/// It starts as what most functions have in common. What a function does differently is said with the functions below,
/// and stands out so.
struct AccessProfile {
    Database database = Database::main;
    Guard guard = Guard::none;
    Texts texts = Texts::own;
    FirstDelay first_delay = FirstDelay::random;
    Draw draw = Draw::after_opening_lock_file;
    std::uint8_t scale = 1;  // of the sleeps
    FailedHandle failed_handle = FailedHandle::closed;
    Stream busy = Stream::nowhere;  // told after each sleep
    Stream not_locked = Stream::nowhere;
    Message not_opened = no_message;

private:
    // It stands before those that call it: clang does not find it from a constant expression otherwise.
    template <typename Value>
    constexpr AccessProfile with(Value AccessProfile::*member, Value value) const {
        AccessProfile profile = *this;
        profile.*member = value;
        return profile;
    }

public:
    constexpr AccessProfile on(Database other) const { return with(&AccessProfile::database, other); }
    constexpr AccessProfile under(Guard other) const { return with(&AccessProfile::guard, other); }
    constexpr AccessProfile for_callers() const { return with(&AccessProfile::texts, Texts::of_callers); }
    constexpr AccessProfile sleeping_from(FirstDelay other) const { return with(&AccessProfile::first_delay, other); }
    constexpr AccessProfile sleeping_times(std::uint8_t other) const { return with(&AccessProfile::scale, other); }
    constexpr AccessProfile drawing_first() const { return with(&AccessProfile::draw, Draw::before_opening_lock_file); }
    constexpr AccessProfile abandoning_failed_handle() const {
        return with(&AccessProfile::failed_handle, FailedHandle::abandoned);
    }

    // Who is told when the database is busy, when the lock file cannot be opened, when the database cannot be opened.
    constexpr AccessProfile when_busy(Stream told) const { return with(&AccessProfile::busy, told); }
    constexpr AccessProfile when_not_locked(Stream told) const { return with(&AccessProfile::not_locked, told); }
    constexpr AccessProfile when_not_opened(Message told) const { return with(&AccessProfile::not_opened, told); }

    /// A reader's profile: who is told when its query cannot be prepared.
    constexpr ReadProfile when_not_prepared(Message told) const;
};

/// How a function reads rows.
struct ReadProfile {
    AccessProfile access;
    Message not_prepared;

    /// The same for texts that callers hand over.
    constexpr ReadProfile for_callers() const { return {access.for_callers(), not_prepared}; }
};

constexpr ReadProfile AccessProfile::when_not_prepared(Message told) const {
    return {*this, told};
}

namespace profiles {

template <const auto &profile>
inline constexpr auto copy_for_callers = profile.for_callers();

/// A profile of the library's own texts, for callers': `for_callers<exec_char>`. It is the same one where texts are not
/// confined.
template <const auto &profile>
inline constexpr const auto &for_callers = []() -> const auto & {
    if constexpr (build_profile.confines_texts) {
        return copy_for_callers<profile>;
    } else {
        return profile;
    }
}
();

/// What most readers do: no lock, and not a word.
inline constexpr AccessProfile unguarded{};

/// What writers do, and readers that wait for them.
inline constexpr AccessProfile guarded =
    unguarded.under(Guard::lock_file).when_not_locked(Stream::standard_error).when_not_opened(code_on_error);

}  // namespace profiles

}  // namespace routerdb
