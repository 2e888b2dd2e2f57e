// The client's end of a connection to the SQL service.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace routerdb {

/// Owns a socket and closes it.
class Socket {
public:
    Socket() = default;
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;
    ~Socket();

    /// Makes the socket and sets its buffers and time-outs.
    [[nodiscard]] bool create();

    /// Connects to the service.
    [[nodiscard]] bool connect();

    /// One send; a short one counts as success. The caller holds SIGPIPE back.
    [[nodiscard]] bool send(const void *data, std::size_t size);

    /// One receive.
    /// @return as recv
    [[nodiscard]] ssize_t receive(void *data, std::size_t size);

private:
    int fd_ = -1;
};

}  // namespace routerdb
