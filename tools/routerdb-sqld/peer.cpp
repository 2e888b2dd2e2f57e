#include "peer.h"

#include <poll.h>
#include <sys/socket.h>
#include <syslog.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>

namespace sqld {

namespace {

constexpr std::int64_t patience_ms = 5'000;

std::int64_t now_ms() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

/// Waits until the peer is ready.
/// @return false when the time is over
bool wait_for(int fd, short events, std::int64_t deadline) {
    for (;;) {
        const std::int64_t left = deadline - now_ms();
        if (left <= 0) {
            errno = ETIMEDOUT;
            return false;
        }
        pollfd peer{fd, events, 0};
        const int ready = poll(&peer, 1, static_cast<int>(left));
        if (ready > 0) {
            return true;
        }
        if (ready < 0 && errno != EINTR) {
            return false;
        }
    }
}

/// Moves `size` bytes in as many steps as it takes. `step` is a recv or send that does not wait.
template <typename Step>
bool move_all(int fd, short events, std::size_t size, std::int64_t deadline, Step step) {
    std::size_t moved = 0;
    while (moved < size) {
        if (!wait_for(fd, events, deadline)) {
            return false;
        }
        const ssize_t count = step(moved, size - moved);
        if (count == 0) {
            errno = ECONNRESET;
            return false;
        }
        if (count < 0 && errno != EAGAIN && errno != EINTR) {
            return false;
        }
        moved += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

bool receive_all(int fd, void *data, std::size_t size, std::int64_t deadline) {
    return move_all(fd, POLLIN, size, deadline, [&](std::size_t offset, std::size_t rest) {
        return recv(fd, static_cast<char *>(data) + offset, rest, MSG_DONTWAIT);
    });
}

bool send_all(int fd, const void *data, std::size_t size, std::int64_t deadline) {
    return move_all(fd, POLLOUT, size, deadline, [&](std::size_t offset, std::size_t rest) {
        return send(fd, static_cast<const char *>(data) + offset, rest, MSG_DONTWAIT | MSG_NOSIGNAL);
    });
}

}  // namespace

void tell(int fd, const char *outcome) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size);
    syslog(LOG_WARNING, "request %s (user %u, process %d)", outcome, peer.uid, peer.pid);
}

bool refuse(int fd, const char *reason) {
    char outcome[128];
    std::snprintf(outcome, sizeof(outcome), "refused, %s", reason);
    tell(fd, outcome);
    return false;
}

bool receive_request(int fd, Request &request) {
    const std::int64_t deadline = now_ms() + patience_ms;
    std::uint32_t header[3];
    if (!receive_all(fd, header, sizeof(header), deadline)) {
        return refuse(fd, errno == ETIMEDOUT ? "its header comes too slowly" : "its header breaks off");
    }
    request.table_id = header[0];
    request.operation = header[1];
    request.length = header[2];
    if (request.length > longest_statement) {
        return refuse(fd, "it is longer than 64 KiB");
    }
    if (!receive_all(fd, request.text, request.length, deadline)) {
        return refuse(fd, errno == ETIMEDOUT ? "its text comes too slowly" : "its text breaks off");
    }
    request.text[request.length] = '\0';
    return true;
}

bool send_reply(int fd, const Request &request, const void *data, std::size_t size) {
    if (size > INT_MAX) {
        syslog(LOG_ERR, "reply of %zu bytes not sent, its size does not fit the header", size);
        return false;
    }
    const std::int64_t deadline = now_ms() + patience_ms;
    const std::uint32_t header[3] = {request.table_id, request.operation, static_cast<std::uint32_t>(size)};
    if (!send_all(fd, header, sizeof(header), deadline) || !send_all(fd, data, size, deadline)) {
        tell(fd, "answered, its reply is not taken");
        return false;
    }
    return true;
}

}  // namespace sqld
