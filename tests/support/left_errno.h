// What calls leave in errno, where failures are told so.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>

#include "support/deliberate_leak.h"
#include "support/profile.h"
#include "support/streams.h"

namespace support {

/// What a call finds there that is watched. None of the library's reasons in these tests is the same.
inline constexpr int found_errno = EXDEV;

/// Runs a call, which may print and fail.
/// @param reason  what it is to leave there; found_errno for a call that leaves errno alone
template <typename Call>
void expect_errno(int reason, Call call) {
    int left = 0;
    streams_of([&] {
        const DeliberateLeak failed;
        errno = found_errno;
        call();
        left = errno;
    });
    if (build_profile.tells_failures) {
        EXPECT_EQ(left, reason);
    }
}

}  // namespace support
