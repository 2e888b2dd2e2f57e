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
    blocked_before_ = held_ && sigismember(&before, SIGPIPE) == 1;
    sigset_t waiting;
    // A thread that had blocked the signal may have one waiting, which is its own.
    waiting_before_ = blocked_before_ && sigpending(&waiting) == 0 && sigismember(&waiting, SIGPIPE) == 1;
}

void SigpipeHold::lift() {
    if (!held_) {
        return;
    }
    held_ = false;
    const int saved_errno = errno;
    const sigset_t sigpipe = only_sigpipe();
    if (failed_ && !waiting_before_) {
        constexpr timespec at_once{};
        sigtimedwait(&sigpipe, nullptr, &at_once);
    }
    if (!blocked_before_) {
        pthread_sigmask(SIG_UNBLOCK, &sigpipe, nullptr);
    }
    errno = saved_errno;
}

}  // namespace routerdb
