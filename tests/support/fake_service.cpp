#include "support/fake_service.h"

#include <linux/sockios.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

#include "support/database.h"
#include "support/record.h"

namespace support {

namespace {

constexpr std::size_t header_size = 12;
constexpr int patience_ms = 30'000;

int listen_on_service_socket() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, service_socket, sizeof(service_socket));
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0 || listen(fd, 64) != 0) {
        throw std::runtime_error("cannot listen on the service socket");
    }
    return fd;
}

/// What arrives until the other end hangs up, at most `limit` bytes of it.
std::string receive(int peer, std::size_t limit) {
    std::string bytes;
    std::array<char, 4096> buffer{};
    while (bytes.size() < limit) {
        const ssize_t count = recv(peer, buffer.data(), std::min(buffer.size(), limit - bytes.size()), 0);
        if (count <= 0) {
            break;
        }
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return bytes;
}

/// Waits until as many bytes lie ready as a whole request has.
void await_request(int peer) {
    std::string arrived;
    for (const bool header_known : {false, true}) {
        arrived.resize(header_size + (header_known ? word(arrived, 2) : 0));
        while (recv(peer, arrived.data(), arrived.size(), MSG_PEEK) < static_cast<ssize_t>(arrived.size())) {
            poll(nullptr, 0, 1);
        }
    }
}

std::string hear(int peer, Hearing hearing) {
    if (hearing == Hearing::left_unread) {
        await_request(peer);
    }
    if (hearing == Hearing::left_unread || hearing == Hearing::none) {
        return {};
    }
    std::string request = receive(peer, header_size);
    if (hearing == Hearing::whole && request.size() == header_size) {
        request += receive(peer, word(request, 2));
    }
    return request;
}

/// Sends and waits until the client has taken it all, or has gone.
void deliver(int peer, const std::string &piece) {
    std::size_t sent = 0;
    while (sent < piece.size()) {
        const ssize_t count = send(peer, piece.data() + sent, piece.size() - sent, MSG_NOSIGNAL);
        if (count < 0) {
            return;
        }
        sent += static_cast<std::size_t>(count);
    }
    int waiting = 0;
    while (ioctl(peer, SIOCOUTQ, &waiting) == 0 && waiting > 0) {
        pollfd end{peer, 0, 0};
        if (poll(&end, 1, 1) > 0) {
            return;
        }
    }
}

std::vector<Conversation> conversations_of(const std::vector<std::string> &replies) {
    std::vector<Conversation> conversations;
    for (const std::string &reply : replies) {
        conversations.push_back(Conversation{{reply}});
    }
    return conversations;
}

}  // namespace

FakeService::FakeService(std::vector<Conversation> conversations)
    : conversations_(std::move(conversations)),
      listener_(listen_on_service_socket()),
      stop_(eventfd(0, EFD_CLOEXEC)),
      hung_up_(eventfd(0, EFD_CLOEXEC)),
      thread_(&FakeService::serve, this) {}

FakeService::FakeService(Conversation conversation) : FakeService(std::vector<Conversation>{std::move(conversation)}) {}

FakeService::FakeService(const std::string &reply) : FakeService(Conversation{{reply}}) {}

FakeService::FakeService(const std::vector<std::string> &replies) : FakeService(conversations_of(replies)) {}

FakeService::~FakeService() {
    requests();
    close(hung_up_);
    close(stop_);
    close(listener_);
    unlink(service_socket);
}

void FakeService::wait_for_hang_up() const {
    pollfd event{hung_up_, POLLIN, 0};
    if (poll(&event, 1, patience_ms) != 1) {
        throw std::runtime_error("the service does not hang up");
    }
}

std::vector<std::string> FakeService::requests() {
    if (thread_.joinable()) {
        eventfd_write(stop_, 1);
        thread_.join();
    }
    return requests_;
}

void FakeService::serve() {
    for (;;) {
        std::array<pollfd, 2> events{{{listener_, POLLIN, 0}, {stop_, POLLIN, 0}}};
        poll(events.data(), events.size(), -1);
        const int peer = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (peer >= 0) {
            lead_conversation(peer, conversations_[std::min(requests_.size(), conversations_.size() - 1)]);
            close(peer);
            eventfd_write(hung_up_, 1);
        } else if (events[1].revents != 0) {
            return;  // and nobody is left waiting
        }
    }
}

void FakeService::lead_conversation(int peer, const Conversation &conversation) {
    constexpr timeval patience{patience_ms / 1000, 0};
    setsockopt(peer, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    requests_.push_back(hear(peer, conversation.hearing));
    for (const std::string &piece : conversation.pieces) {
        deliver(peer, piece);
    }
    if (conversation.hearing == Hearing::whole) {
        if (conversation.ending == Ending::hang_up) {
            shutdown(peer, SHUT_WR);
        }
        requests_.back() += receive(peer, std::string::npos);
    }
}

std::string reply_of(const std::string &data) {
    return words({0, 0, static_cast<std::uint32_t>(data.size())}) + data;
}

std::string readable(const std::string &request) {
    if (request.size() < header_size) {
        return request;
    }
    return std::to_string(word(request, 0)) + " " + std::to_string(word(request, 1)) + " " +
           std::to_string(word(request, 2)) + " " + request.substr(header_size);
}

}  // namespace support
