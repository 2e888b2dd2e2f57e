// The service's socket and the processes that serve its connections.
#pragma once

#include <csignal>

namespace sqld {

/// Connections served at once; further ones wait.
inline constexpr int most_children = 32;

class Server {
public:
    Server() = default;
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;
    ~Server();

    /// Listens on the service socket, which it creates with mode 0660. A socket that nobody listens on any more is
    /// replaced.
    /// @return false after the reason went to the system log
    bool listen();

    /// Serves connections until SIGTERM or SIGINT, then waits for those being served.
    void run();

private:
    void take_signals();
    bool bind_socket();
    void accept_one();
    void reap(int options);

    int fd_ = -1;
    int children_ = 0;
    sigset_t outside_{};  // signals blocked outside of the wait
};

}  // namespace sqld
