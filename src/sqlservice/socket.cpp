#include "sqlservice/socket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>

#include "build_profile.h"
#include "core/paths.h"

namespace routerdb {

namespace {

constexpr int patience_ms = 10'000;

/// Of a clock that nobody sets, where it is asked for.
std::int64_t milliseconds() {
    timespec now{};
    if (build_profile.limits_exchange) {
        clock_gettime(CLOCK_MONOTONIC, &now);
    }
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

}  // namespace

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
    constexpr timeval patience{patience_ms / 1000, 0};
    setsockopt(fd_, SOL_SOCKET, SO_RCVBUF, &buffer_size, sizeof(buffer_size));
    setsockopt(fd_, SOL_SOCKET, SO_SNDBUF, &buffer_size, sizeof(buffer_size));
    setsockopt(fd_, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
    setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    begun_ = milliseconds();
    return true;
}

/// The time-outs count for one call each. Where the build profile limits the exchange they count for all calls
/// together: one that comes later than at once has what is left.
/// @param time_out  SO_SNDTIMEO or SO_RCVTIMEO
/// @return false when nothing is left
bool Socket::limit(int time_out) {
    constexpr std::int64_t at_once = 100;
    const std::int64_t spent = milliseconds() - begun_;
    if (spent < at_once) {
        return true;
    }
    if (spent >= patience_ms) {
        errno = EAGAIN;
        return false;
    }
    const int left = patience_ms - static_cast<int>(spent);  // 32-bit processors divide it by themselves
    const timeval time{left / 1000, left % 1000 * 1000L};
    setsockopt(fd_, SOL_SOCKET, time_out, &time, sizeof(time));
    return true;
}

bool Socket::serves_this_caller() const {
    if (!build_profile.checks_service) {
        return true;
    }
    ucred peer{};
    socklen_t size = sizeof(peer);
    struct stat database {};
    if (getsockopt(fd_, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
        (peer.uid == 0 || peer.uid == geteuid() ||
         (stat(paths::main_database, &database) == 0 && peer.uid == database.st_uid))) {
        return true;
    }
    errno = EACCES;
    return false;
}

bool Socket::connect() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // The length counts the family and the characters of the path, without its terminator.
    constexpr std::size_t path_length = sizeof(paths::service_socket) - 1;
    constexpr socklen_t length = offsetof(sockaddr_un, sun_path) + path_length;
    std::memcpy(address.sun_path, paths::service_socket, path_length);
    // What follows is sent at once, or waits for the service with the text: the limit before both is enough.
    return ::connect(fd_, reinterpret_cast<const sockaddr *>(&address), length) != -1 && limit(SO_SNDTIMEO);
}

bool Socket::send(const void *data, std::size_t size) {
    const ssize_t sent = ::send(fd_, data, size, 0);
    if (!build_profile.checks_sends || sent == -1) {
        return sent != -1;
    }
    errno = EIO;  // for what could not be sent whole
    return static_cast<std::size_t>(sent) == size;
}

ssize_t Socket::receive(void *data, std::size_t size) {
    return limit(SO_RCVTIMEO) ? recv(fd_, data, size, 0) : -1;
}

}  // namespace routerdb
