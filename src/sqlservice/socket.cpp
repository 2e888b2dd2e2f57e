#include "sqlservice/socket.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include "core/paths.h"

namespace routerdb {

Socket::~Socket() {
    if (fd_ >= 0) {
        close(fd_);
    }
}

bool Socket::create() {
    fd_ = socket(AF_UNIX, SOCK_STREAM, 0);
    if (fd_ == -1) {
        return false;
    }
    constexpr int buffer_size = 32768;
    constexpr timeval patience{10, 0};
    setsockopt(fd_, SOL_SOCKET, SO_RCVBUF, &buffer_size, sizeof(buffer_size));
    setsockopt(fd_, SOL_SOCKET, SO_SNDBUF, &buffer_size, sizeof(buffer_size));
    setsockopt(fd_, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
    setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    return true;
}

bool Socket::connect() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // The length counts the family and the characters of the path, without its terminator.
    constexpr std::size_t path_length = sizeof(paths::service_socket) - 1;
    constexpr socklen_t length = offsetof(sockaddr_un, sun_path) + path_length;
    std::memcpy(address.sun_path, paths::service_socket, path_length);
    return ::connect(fd_, reinterpret_cast<const sockaddr *>(&address), length) != -1;
}

bool Socket::send(const void *data, std::size_t size) {
    return ::send(fd_, data, size, 0) != -1;
}

ssize_t Socket::receive(void *data, std::size_t size) {
    return recv(fd_, data, size, 0);
}

}  // namespace routerdb
