// The client's end of a connection to the SQL service.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>

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

    /// Whether the one who listens may answer this process, where the build profile asks: root, the process's own user,
    /// or the owner of the main database. errno says EACCES otherwise.
    bool serves_this_caller() const;

    /// One send; where sends are not checked, a short one counts as success. The caller holds SIGPIPE back.
    [[nodiscard]] bool send(const void *data, std::size_t size);

    /// One receive.
    /// @return as recv
    [[nodiscard]] ssize_t receive(void *data, std::size_t size);

private:
    bool limit(int time_out);

    int fd_ = -1;
    std::int64_t begun_ = 0;
};

}  // namespace routerdb
