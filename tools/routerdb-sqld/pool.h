// The processes that serve: they are started, handed requests, watched, and replaced.
#pragma once

#include <poll.h>
#include <sys/types.h>

#include <cstdint>

#include "channel.h"
#include "client.h"
#include "connections.h"
#include "counters.h"
#include "settings.h"

namespace sqld {

/// Processes that serve, and as many that only wait for their clients to take a reply.
inline constexpr int most_serving = 32;
inline constexpr int most_waiting = 32;
inline constexpr int most_processes = 2 * most_serving + most_waiting;  // some are about to end

/// One of them, as the service sees it.
struct Process {
    enum State : unsigned char {
        none,
        idle,
        serving,
        waiting,  // for the client; it ends then
        ending,
    };
    pid_t id;
    int channel;
    State state;
    bool was_used;
    bool has_hung_up;
    Client client;  // whose request it serves
    std::int64_t began;

    /// @return false if it is about to end
    bool serve(const Connection &connection);

    /// Ends it: its client gets no more.
    void retire();
};

class Pool {
public:
    /// @param in_child  lets a new process go of what is the service's
    Pool(const Settings &settings, Counters &counters, void (*in_child)(void *), void *context);
    Pool(const Pool &) = delete;
    Pool &operator=(const Pool &) = delete;

    /// Starts as many workers as there have to be.
    void fill();

    /// A process for the next request; null if it has to wait.
    Process *find_idle();

    /// How many requests of a client's process are being served.
    int served_for(pid_t client) const;

    /// Asks for what they say, by one entry for each process.
    void ask(pollfd *asked) const;

    /// Listens to it.
    void hear(const pollfd *asked);

    /// Takes notice of those that have ended.
    void reap();

    /// Ends those that have been at it for too long.
    void end_overdue();

    /// When the next one's time is over, or another one may be started; INT64_MAX without any.
    std::int64_t next_deadline() const;

    /// Those that serve or could, and those that are there at all.
    int count_ready() const;
    bool has_busy() const;
    bool is_empty() const;

    /// Tells them to end, or ends them.
    void dismiss();
    void kill_all();

private:
    Process *start();
    Process *find(pid_t id);
    void hear(Process &process);
    void note(Process &process, const Report &report);
    void limit_waiting();

    const Settings &settings_;
    Counters &counters_;
    void (*const in_child_)(void *);
    void *const context_;
    std::int64_t next_start_ = 0;
    Process processes_[most_processes]{};
};

}  // namespace sqld
