// Requests to the SQL service by hand.
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "bare/by_hand.h"
#include "harness/desk.h"
#include "harness/requests.h"

namespace bench::bare {

namespace {

constexpr std::size_t header_size = 12;

int connect_to_service() {
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    const int buffer_size = 32768;
    const timeval patience{10, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVBUF, &buffer_size, sizeof(buffer_size));
    setsockopt(fd, SOL_SOCKET, SO_SNDBUF, &buffer_size, sizeof(buffer_size));
    setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, paths::service_socket);
    (void)connect(fd, reinterpret_cast<const sockaddr *>(&address),
                  static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + std::strlen(paths::service_socket)));
    return fd;
}

void exchange(const SqlRequest &request, SqlReply &reply) {
    const int fd = connect_to_service();
    send(fd, &request, header_size, 0);
    send(fd, request.text, request.length, 0);
    recv(fd, &reply, header_size, 0);
    const auto size = static_cast<std::size_t>(reply.size);
    char *const data = static_cast<char *>(std::malloc(size));
    std::size_t received = 0;
    while (received < size) {
        const ssize_t count = recv(fd, data + received, size - received, 0);
        if (count <= 0) {
            break;
        }
        received += static_cast<std::size_t>(count);
    }
    reply.data = data;
    close(fd);
}

}  // namespace

void request_one() {
    exchange(one_filter, desk.reply);
}

void request_all() {
    exchange(all_filters, desk.reply);
}

void fetch_url_filters() {
    SqlReply reply{};
    exchange(all_filters, reply);
    const std::size_t count = static_cast<std::size_t>(reply.size) / sizeof(UrlFilterItem);
    desk.url_filters.count = static_cast<std::uint32_t>(count);
    std::memcpy(desk.url_filters.items, reply.data, count * sizeof(UrlFilterItem));
    std::memset(desk.url_filters.items + count, 0, (ROUTERDB_LIST_CAPACITY - count) * sizeof(UrlFilterItem));
    std::free(reply.data);
}

}  // namespace bench::bare
