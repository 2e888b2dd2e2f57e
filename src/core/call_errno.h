// What a call leaves in errno.
#pragma once

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

    /// The first reason counts.
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

/// The reason that a result code of SQLite stands for.
[[gnu::const]] int errno_of(int sqlite_code);

}  // namespace routerdb
