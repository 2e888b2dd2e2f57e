#include "channel.h"

#include <sys/socket.h>
#include <sys/uio.h>

#include <cerrno>
#include <cstring>

namespace sqld {

namespace {

/// Room for a message about one descriptor.
union Rights {
    cmsghdr header;
    char bytes[CMSG_SPACE(sizeof(int))];
};

}  // namespace

bool make_channel(int (&ends)[2]) {
    return socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) == 0;
}

bool hand_over(int channel, int connection, const Request &request, std::size_t size) {
    Rights rights{};
    iovec bytes{const_cast<Request *>(&request), size};
    msghdr message{};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = rights.bytes;
    message.msg_controllen = sizeof(rights.bytes);
    rights.header.cmsg_level = SOL_SOCKET;
    rights.header.cmsg_type = SCM_RIGHTS;
    rights.header.cmsg_len = CMSG_LEN(sizeof(connection));
    std::memcpy(CMSG_DATA(&rights.header), &connection, sizeof(connection));
    return sendmsg(channel, &message, MSG_DONTWAIT | MSG_NOSIGNAL) == static_cast<ssize_t>(size);
}

int take_over(int channel, Request &request) {
    Rights rights{};
    iovec bytes{&request, longest_request};
    msghdr message{};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = rights.bytes;
    message.msg_controllen = sizeof(rights.bytes);
    ssize_t size = 0;
    do {
        size = recvmsg(channel, &message, MSG_CMSG_CLOEXEC);
    } while (size < 0 && errno == EINTR);
    const cmsghdr *const header = CMSG_FIRSTHDR(&message);
    if (size < static_cast<ssize_t>(header_size) || header == nullptr || header->cmsg_type != SCM_RIGHTS) {
        return -1;
    }
    request.text[static_cast<std::size_t>(size) - header_size] = '\0';
    int connection = -1;
    std::memcpy(&connection, CMSG_DATA(header), sizeof(connection));
    return connection;
}

bool say(int channel, Report report) {
    ssize_t size = 0;
    do {
        size = send(channel, &report, sizeof(report), MSG_NOSIGNAL);
    } while (size < 0 && errno == EINTR);
    return size >= 0;
}

Heard hear(int channel, Report &report) {
    const ssize_t size = recv(channel, &report, sizeof(report), MSG_DONTWAIT);
    if (size == static_cast<ssize_t>(sizeof(report))) {
        return Heard::report;
    }
    return size < 0 && (errno == EAGAIN || errno == EINTR) ? Heard::nothing : Heard::end;
}

}  // namespace sqld
