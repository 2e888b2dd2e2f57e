// A connection to the SQL service, byte by byte.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

namespace support {

class Peer {
public:
    Peer();
    Peer(const Peer &) = delete;
    Peer &operator=(const Peer &) = delete;
    ~Peer();

    bool connected() const { return connected_; }

    /// Who listens there.
    pid_t listener() const;

    /// @return whether the service has taken all of it
    bool send(const std::string &bytes) const;

    /// Sends no more.
    void finish() const;

    /// What comes until the service hangs up, or until half a minute has passed.
    std::string receive() const;

    /// Whether the service has hung up; what it has sent before is thrown away.
    bool hung_up() const;

private:
    int fd_;
    bool connected_;
};

/// A request as it travels.
std::string request(unsigned table_id, unsigned operation, const std::string &text);

/// Sends a request and receives the reply.
std::string exchange(const std::string &request);

}  // namespace support
