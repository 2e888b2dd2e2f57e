// Memory that the library leaves behind on purpose.
#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include "support/profile.h"

namespace support {

/// Where the library closes its own, it may leave nothing behind. Elsewhere what this thread allocates while it lives
/// may be left behind: a connection that SQLite could not open, or the converter of a failed conversion. Everything
/// else that is left fails the test when leaks are looked for.
class DeliberateLeak {
public:
    explicit DeliberateLeak(bool expected = true) : expected_(expected && !build_profile.closes_its_own) {
        if (expected_) {
            disable();
        }
    }
    DeliberateLeak(const DeliberateLeak &) = delete;
    DeliberateLeak &operator=(const DeliberateLeak &) = delete;
    ~DeliberateLeak() {
        if (expected_) {
            enable();
        }
    }

private:
#ifdef __SANITIZE_ADDRESS__
    static void disable() {
        __lsan_disable();
    }
    static void enable() {
        __lsan_enable();
    }
#else
    static void disable() {}
    static void enable() {}
#endif

    bool expected_;
};

}  // namespace support
