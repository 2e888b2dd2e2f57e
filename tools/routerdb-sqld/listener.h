// The socket that clients connect to, and the lock that decides who serves.
#pragma once

#include "settings.h"

namespace sqld {

class Listener {
public:
    Listener() = default;
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    ~Listener();

    /// Listens on the service socket: on the one that the service manager has handed over, or else on one that is
    /// created with mode 0660, complete from the first moment on. A socket that nobody listens on any more is replaced.
    /// @return false after the reason went to the system log
    bool start(const Settings &settings);

    int fd() const { return fd_; }

    /// Takes no more connections, and takes the socket away if it was created here.
    void stop();

    /// Lets go of both in a child, which leaves them to the service.
    void abandon();

private:
    bool become_the_one();
    bool take_lock();
    bool bind_socket(const Settings &settings);

    int fd_ = -1;
    int lock_ = -1;
    bool is_own_ = false;
};

}  // namespace sqld
