#include "support/peer.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "support/database.h"
#include "support/fake_service.h"
#include "support/record.h"

namespace support {

Peer::Peer() : fd_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    constexpr timeval patience{30, 0};
    setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    setsockopt(fd_, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, service_socket, sizeof(service_socket));
    connected_ = connect(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
}

Peer::~Peer() {
    close(fd_);
}

pid_t Peer::listener() const {
    ucred credentials{};
    socklen_t size = sizeof(credentials);
    getsockopt(fd_, SOL_SOCKET, SO_PEERCRED, &credentials, &size);
    return credentials.pid;
}

bool Peer::send(const std::string &bytes) const {
    return ::send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

void Peer::finish() const {
    shutdown(fd_, SHUT_WR);
}

std::string Peer::receive() const {
    std::string bytes;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t count = recv(fd_, buffer.data(), buffer.size(), 0);
        if (count <= 0) {
            return bytes;
        }
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

bool Peer::hung_up() const {
    std::array<char, 65536> buffer{};
    ssize_t count = 1;
    while (count > 0) {
        count = recv(fd_, buffer.data(), buffer.size(), MSG_DONTWAIT);
    }
    return count == 0 || errno != EAGAIN;
}

std::string request(unsigned table_id, unsigned operation, const std::string &text) {
    return words({table_id, operation, static_cast<std::uint32_t>(text.size())}) + text;
}

std::string exchange(const std::string &request) {
    const Peer peer;
    peer.send(request);
    return peer.receive();
}

}  // namespace support
