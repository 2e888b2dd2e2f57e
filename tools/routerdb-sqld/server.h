// The service's socket and the processes that serve its connections.
#pragma once

#include <sys/types.h>

#include <csignal>

#include "settings.h"

namespace sqld {

/// Connections served at once; further ones wait.
inline constexpr int most_children = 32;

class Server {
public:
    explicit Server(const Settings &settings) : settings_(settings) {}
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;
    ~Server();

    /// Listens on the service socket, which it creates with mode 0660, complete from the first moment on. A socket that
    /// nobody listens on any more is replaced.
    /// @return false after the reason went to the system log
    bool listen();

    /// Serves connections until SIGTERM or SIGINT. Those being served then have two seconds.
    void run();

private:
    void take_signals();
    bool take_lock();
    bool bind_socket();
    void accept_one();
    void reap();
    bool has_children() const;
    void end_children();
    pid_t *free_place();

    const Settings settings_;
    int fd_ = -1;
    int lock_ = -1;
    pid_t children_[most_children]{};  // 0 for none
    sigset_t outside_{};               // signals blocked outside of the wait
};

}  // namespace sqld
