// The connections whose requests are being collected, or wait for a worker.
#pragma once

#include <poll.h>
#include <sys/types.h>

#include <cstdint>

#include "client.h"
#include "counters.h"
#include "request.h"

namespace sqld {

/// Connections in all, and of one process. When there are more, the oldest whose request is not whole goes.
inline constexpr int most_connections = 256;
inline constexpr int most_of_a_process = 64;

struct Connection {
    int fd;  // -1 for none
    Client client;
    std::int64_t began;
    std::size_t received;
    Request *request;
    bool is_whole;

    std::size_t size() const { return header_size + request->length; }

    /// Closes it.
    void drop();
};

class Connections {
public:
    Connections(Counters &counters, unsigned request_seconds);
    Connections(const Connections &) = delete;
    Connections &operator=(const Connections &) = delete;
    ~Connections() { close_all(); }

    /// @return false without room for their requests
    bool is_ready() const { return requests_ != nullptr; }

    /// Whether one more finds a place.
    bool take_more() { return find_free() != nullptr || oldest_incomplete(nullptr) != nullptr; }

    /// Takes in a new one and what it has sent so far.
    void add(int fd);

    /// Gives up the oldest whose request is not whole.
    /// @return whether there was one
    bool give_up_oldest();

    /// Asks for what is yet to come, by one entry for each connection.
    void ask(pollfd *asked) const;

    /// Receives it.
    void receive(const pollfd *asked);

    /// Refuses those whose time is over.
    void refuse_overdue();

    /// When the next one's time is over; INT64_MAX without any.
    std::int64_t next_deadline() const;

    /// Of the whole ones, one whose process asks for the least, and among those the one that waits longest.
    /// @param served  how many requests of a process are being served right now
    Connection *next_whole(int (*served)(void *context, pid_t process), void *context);

    bool is_empty() const;

    /// Closes all, without a word.
    void close_all();

private:
    Connection *find_free();
    Connection *oldest_incomplete(const Client *of);
    int count_of(pid_t process) const;
    void receive(Connection &connection);
    void accept_bytes(Connection &connection, std::size_t count);
    std::int64_t deadline_of(const Connection &connection) const;
    void refuse(Connection &connection, const char *reason);

    Counters &counters_;
    const std::int64_t request_ms_;
    char *requests_;
    Connection connections_[most_connections];
};

}  // namespace sqld
