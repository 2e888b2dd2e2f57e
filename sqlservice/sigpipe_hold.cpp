#include "sqlservice/sigpipe_hold.h"

#include <cerrno>
#include <csignal>
#include <ctime>

namespace routerdb {

namespace {

sigset_t only_sigpipe() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

}  // namespace

SigpipeHold::SigpipeHold() {
    const sigset_t sigpipe = only_sigpipe();
    sigset_t before;
    held_ = pthread_sigmask(SIG_BLOCK, &sigpipe, &before) == 0;
    // A thread that had blocked the signal itself gets what comes up, as it would without us.
    blocked_before_ = held_ && sigismember(&before, SIGPIPE) == 1;
}

void SigpipeHold::lift() {
    if (!held_) {
        return;
    }
    held_ = false;
    const int saved_errno = errno;
    const sigset_t sigpipe = only_sigpipe();
    if (!blocked_before_) {
        if (failed_) {
            // It was not blocked before, so what is waiting now can only be ours.
            constexpr timespec at_once{};
            sigtimedwait(&sigpipe, nullptr, &at_once);
        }
        pthread_sigmask(SIG_UNBLOCK, &sigpipe, nullptr);
    }
    errno = saved_errno;
}

}  // namespace routerdb
