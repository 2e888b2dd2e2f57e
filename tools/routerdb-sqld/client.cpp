#include "client.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <syslog.h>

#include <cerrno>
#include <climits>
#include <cstdio>

#include "clock.h"

namespace sqld {

namespace {

constexpr std::int64_t patience_ms = 5'000;

/// What a client that is there needs to take more than a connection holds.
constexpr std::int64_t at_once_ms = 10;

/// Waits until a client takes more.
/// @return false when the time is over
bool wait_for(int fd, std::int64_t deadline) {
    for (;;) {
        const std::int64_t left = deadline - now_ms();
        if (left <= 0) {
            errno = ETIMEDOUT;
            return false;
        }
        pollfd client{fd, POLLOUT, 0};
        const int ready = poll(&client, 1, static_cast<int>(left));
        if (ready > 0) {
            return true;
        }
        if (ready < 0 && errno != EINTR) {
            return false;
        }
    }
}

/// The rest of a reply.
struct Outgoing {
    iovec parts[2];

    bool is_sent() const { return parts[1].iov_len == 0 && parts[0].iov_len == 0; }

    void take(std::size_t count) {
        for (iovec &part : parts) {
            const std::size_t taken = count < part.iov_len ? count : part.iov_len;
            part.iov_base = static_cast<char *>(part.iov_base) + taken;
            part.iov_len -= taken;
            count -= taken;
        }
    }
};

/// Sends as much as the connection holds.
/// @return false if it is broken
bool send_some(int fd, Outgoing &outgoing) {
    msghdr message{};
    message.msg_iov = outgoing.parts;
    message.msg_iovlen = 2;
    const ssize_t count = sendmsg(fd, &message, MSG_DONTWAIT | MSG_NOSIGNAL);
    if (count >= 0) {
        outgoing.take(static_cast<std::size_t>(count));
    }
    return count >= 0 || errno == EAGAIN || errno == EINTR;
}

/// Sends until all is sent or the time is over.
bool send_until(int fd, Outgoing &outgoing, std::int64_t deadline) {
    while (!outgoing.is_sent()) {
        if (!wait_for(fd, deadline) || !send_some(fd, outgoing)) {
            return false;
        }
    }
    return true;
}

}  // namespace

Client client_of(int fd) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size);
    return {peer.uid, peer.pid};
}

void tell(const Client &client, const char *outcome) {
    syslog(LOG_WARNING, "request %s (user %u, process %d)", outcome, client.user, client.process);
}

void tell_refusal(const Client &client, const char *reason) {
    char outcome[128];
    std::snprintf(outcome, sizeof(outcome), "refused, %s", reason);
    tell(client, outcome);
}

bool send_reply(int fd, const Request &request, const void *data, std::size_t size, OnWait on_wait, void *context) {
    if (size > INT_MAX) {
        syslog(LOG_ERR, "reply of %zu bytes not sent, its size does not fit the header", size);
        return false;
    }
    const std::int64_t start = now_ms();
    std::uint32_t header[3] = {request.table_id, request.operation, static_cast<std::uint32_t>(size)};
    Outgoing outgoing{{{header, sizeof(header)}, {const_cast<void *>(data), size}}};
    bool sent = send_some(fd, outgoing) && send_until(fd, outgoing, start + at_once_ms);
    if (!sent && errno == ETIMEDOUT) {
        on_wait(context);
        sent = send_until(fd, outgoing, start + patience_ms);
    }
    if (!sent) {
        tell(client_of(fd), "answered, its reply is not taken");
    }
    return sent;
}

}  // namespace sqld
