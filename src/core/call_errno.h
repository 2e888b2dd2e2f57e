// What a call leaves in errno.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <type_traits>

#include "build_profile.h"

namespace routerdb {

/// Keeps errno while a call is under way: afterwards it is as it was before, or tells why the call failed. Those inside
/// another one end before it, and it does not know of them: whoever wants to hand a failure on says so.
class KeptErrno {
public:
    KeptErrno() : before_(errno) {}
    KeptErrno(const KeptErrno &) = delete;
    KeptErrno &operator=(const KeptErrno &) = delete;
    ~KeptErrno() { errno = reason_ != 0 ? reason_ : before_; }

    /// The first reason counts; 0 is none.
    void fail(int reason) {
        if (reason_ == 0) {
            reason_ = reason;
        }
    }

private:
    int before_;
    int reason_ = 0;
};

/// Leaves errno to whoever changes it.
struct [[maybe_unused]] ForgottenErrno {
    void fail(int /*reason*/) {}
};

using CallErrno = std::conditional_t<build_profile.tells_failures, KeptErrno, ForgottenErrno>;

/// Where failures are told: the reason of a call that ends with it.
inline void leave_errno(int reason) {
    if (build_profile.tells_failures) {
        errno = reason;
    }
}

/// The reason that a result code of SQLite stands for.
[[gnu::const]] int errno_of(int sqlite_code);

/// Sleeps where nothing is kept: a signal that ends it is no failure.
inline void sleep_untold(useconds_t time) {
    const CallErrno untold;
    usleep(time);
}

}  // namespace routerdb
