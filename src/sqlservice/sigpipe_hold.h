// Keeps SIGPIPE from the caller's program.
#pragma once

namespace routerdb {

/// Holds SIGPIPE back from the calling thread while it writes to a service that may have hung up: a program that
/// never thought of the signal would be ended by it.
class SigpipeHold {
public:
    SigpipeHold();
    SigpipeHold(const SigpipeHold &) = delete;
    SigpipeHold &operator=(const SigpipeHold &) = delete;
    ~SigpipeHold() { lift(); }

    /// Takes away a signal that came up meanwhile and restores the thread's mask. errno stays as it was.
    void lift();

    /// A send failed, so that a signal may have come up.
    void note_failure() { failed_ = true; }

private:
    bool held_ = false;
    bool blocked_before_ = false;
    bool waiting_before_ = false;
    bool failed_ = false;
};

}  // namespace routerdb
