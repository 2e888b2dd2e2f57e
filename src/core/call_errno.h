// What a call leaves in errno.
#pragma once

#include <cerrno>

#include "build_profile.h"

namespace routerdb {

/// Keeps errno while a call is under way: afterwards it is as it was before, or tells why the call failed. Those inside
/// another one end before it, and it does not know of them: whoever wants to hand a failure on says so.
class CallErrno {
public:
    CallErrno() : before_(tells ? errno : 0) {}
    CallErrno(const CallErrno &) = delete;
    CallErrno &operator=(const CallErrno &) = delete;
    ~CallErrno() {
        if (tells) {
            errno = reason_ != 0 ? reason_ : before_;
        }
    }

    /// The first reason counts.
    void fail(int reason) {
        if (tells && reason_ == 0) {
            reason_ = reason;
        }
    }

private:
    static constexpr bool tells = build_profile.tells_failures;

    int before_;
    int reason_ = 0;
};

/// The reason that a result code of SQLite stands for.
[[gnu::const]] int errno_of(int sqlite_code);

}  // namespace routerdb
