#include "connections.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "clock.h"

namespace sqld {

namespace {

constexpr std::int64_t header_patience_ms = 1'000;
constexpr std::int64_t text_patience_ms = 5'000;

/// Requests lie at pages of their own, which are given back.
constexpr std::size_t page = 4096;
constexpr std::size_t stride = (sizeof(Request) + page - 1) / page * page;
constexpr std::size_t requests_size = most_connections * stride;

}  // namespace

void Connection::drop() {
    close(fd);
    fd = -1;
    if (received > page) {
        madvise(request, stride, MADV_DONTNEED);
    }
}

Connections::Connections(Counters &counters, unsigned request_seconds)
    : counters_(counters), request_ms_(std::int64_t{request_seconds} * 1000) {
    void *const memory =
        mmap(nullptr, requests_size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    requests_ = memory != MAP_FAILED ? static_cast<char *>(memory) : nullptr;
    for (int i = 0; i < most_connections; ++i) {
        connections_[i] = {};
        connections_[i].fd = -1;
        connections_[i].request = reinterpret_cast<Request *>(requests_ + static_cast<std::size_t>(i) * stride);
    }
}

Connection *Connections::find_free() {
    for (Connection &connection : connections_) {
        if (connection.fd < 0) {
            return &connection;
        }
    }
    return nullptr;
}

/// @param of  whose; null for anybody's
Connection *Connections::oldest_incomplete(const Client *of) {
    Connection *oldest = nullptr;
    for (Connection &connection : connections_) {
        const bool counts =
            connection.fd >= 0 && !connection.is_whole && (of == nullptr || connection.client.process == of->process);
        if (counts && (oldest == nullptr || connection.began < oldest->began)) {
            oldest = &connection;
        }
    }
    return oldest;
}

int Connections::count_of(pid_t process) const {
    return static_cast<int>(std::count_if(connections_, connections_ + most_connections, [&](const Connection &one) {
        return one.fd >= 0 && one.client.process == process;
    }));
}

void Connections::add(int fd) {
    const Client client = client_of(fd);
    if (count_of(client.process) >= most_of_a_process) {
        Connection *const oldest = oldest_incomplete(&client);
        if (oldest == nullptr) {
            tell_refusal(client, "its process has too many connections");
            ++counters_.refused;
            close(fd);
            return;
        }
        refuse(*oldest, "its process has too many connections");
    }
    if (find_free() == nullptr) {
        give_up_oldest();
    }
    Connection &connection = *find_free();
    connection.fd = fd;
    connection.client = client;
    connection.began = now_ms();
    connection.received = 0;
    connection.is_whole = false;
    receive(connection);
}

bool Connections::give_up_oldest() {
    Connection *const oldest = oldest_incomplete(nullptr);
    if (oldest != nullptr) {
        refuse(*oldest, "there are too many connections");
    }
    return oldest != nullptr;
}

void Connections::ask(pollfd *asked) const {
    for (int i = 0; i < most_connections; ++i) {
        asked[i] = {connections_[i].is_whole ? -1 : connections_[i].fd, POLLIN, 0};
    }
}

void Connections::receive(const pollfd *asked) {
    for (int i = 0; i < most_connections; ++i) {
        if (asked[i].fd >= 0 && asked[i].revents != 0) {
            receive(connections_[i]);
        }
    }
}

void Connections::receive(Connection &connection) {
    const std::size_t most = connection.received < header_size ? longest_request : connection.size();
    char *const place = reinterpret_cast<char *>(connection.request) + connection.received;
    const ssize_t count = recv(connection.fd, place, most - connection.received, MSG_DONTWAIT);
    if (count > 0) {
        accept_bytes(connection, static_cast<std::size_t>(count));
    } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
        refuse(connection, connection.received < header_size ? "its header breaks off" : "its text breaks off");
    }
}

void Connections::accept_bytes(Connection &connection, std::size_t count) {
    connection.received += count;
    if (connection.received < header_size) {
        return;
    }
    if (connection.request->length > longest_statement) {
        refuse(connection, "it is longer than 64 KiB");
    } else if (connection.received >= connection.size()) {
        connection.is_whole = true;
        ++counters_.requests;
    }
}

std::int64_t Connections::deadline_of(const Connection &connection) const {
    const std::int64_t patience = connection.is_whole                 ? request_ms_
                                  : connection.received < header_size ? header_patience_ms
                                                                      : text_patience_ms;
    return connection.began + std::min(patience, request_ms_);
}

void Connections::refuse_overdue() {
    const std::int64_t now = now_ms();
    for (Connection &connection : connections_) {
        if (connection.fd >= 0 && deadline_of(connection) <= now) {
            ++counters_.timed_out;
            refuse(connection, connection.is_whole                 ? "it has waited too long"
                               : connection.received < header_size ? "its header comes too slowly"
                                                                   : "its text comes too slowly");
        }
    }
}

std::int64_t Connections::next_deadline() const {
    std::int64_t next = INT64_MAX;
    for (const Connection &connection : connections_) {
        next = connection.fd >= 0 ? std::min(next, deadline_of(connection)) : next;
    }
    return next;
}

Connection *Connections::next_whole(int (*served)(void *context, pid_t process), void *context) {
    Connection *next = nullptr;
    int least = 0;
    for (Connection &connection : connections_) {
        if (connection.fd < 0 || !connection.is_whole) {
            continue;
        }
        const int count = served(context, connection.client.process) + count_of(connection.client.process);
        if (next == nullptr || count < least || (count == least && connection.began < next->began)) {
            next = &connection;
            least = count;
        }
    }
    return next;
}

bool Connections::is_empty() const {
    return std::all_of(connections_, connections_ + most_connections, [](const Connection &one) { return one.fd < 0; });
}

void Connections::refuse(Connection &connection, const char *reason) {
    tell_refusal(connection.client, reason);
    ++counters_.refused;
    connection.drop();
}

void Connections::close_all() {
    for (Connection &connection : connections_) {
        if (connection.fd >= 0) {
            close(connection.fd);
            connection.fd = -1;
        }
    }
    if (requests_ != nullptr) {
        munmap(requests_, requests_size);
        requests_ = nullptr;
    }
}

}  // namespace sqld
