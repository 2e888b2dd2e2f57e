// The service: it collects requests and hands them to the processes that serve.
#pragma once

#include <csignal>

#include "connections.h"
#include "counters.h"
#include "listener.h"
#include "pool.h"
#include "settings.h"

namespace sqld {

class Server {
public:
    explicit Server(const Settings &settings);
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    /// Listens, and gives up the rights that it needs for that alone.
    /// @return false after the reason went to the system log
    bool start();

    /// Serves until SIGTERM or SIGINT. Requests under way then have two seconds.
    void run();

private:
    void take_signals();
    void leave_to_service();
    void round();
    void accept_one();
    void hand_out();
    std::int64_t next_deadline() const;
    void tell_counters() const;
    void finish();

    const Settings settings_;
    Counters counters_;
    Listener listener_;
    Connections connections_;
    Pool pool_;
    std::int64_t end_ = INT64_MAX;  // of those under way when it stops
    sigset_t outside_{};            // signals blocked outside of the wait
};

}  // namespace sqld
