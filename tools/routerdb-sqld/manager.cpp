#include "manager.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace sqld::manager {

namespace {

constexpr int first_handed_over = 3;

sockaddr_un notified;
socklen_t notified_size;  // 0 for nobody

bool is_set_to(const char *name, long number) {
    const char *const text = std::getenv(name);
    return text != nullptr && std::strtol(text, nullptr, 10) == number;
}

int option_of(int fd, int option) {
    int value = -1;
    socklen_t size = sizeof(value);
    return getsockopt(fd, SOL_SOCKET, option, &value, &size) == 0 ? value : -1;
}

bool listens(int fd) {
    return option_of(fd, SO_DOMAIN) == AF_UNIX && option_of(fd, SO_TYPE) == SOCK_STREAM &&
           option_of(fd, SO_ACCEPTCONN) == 1;
}

}  // namespace

int take_socket() {
    const bool handed_over = is_set_to("LISTEN_PID", getpid()) && is_set_to("LISTEN_FDS", 1);
    unsetenv("LISTEN_PID");
    unsetenv("LISTEN_FDS");
    unsetenv("LISTEN_FDNAMES");
    if (!handed_over || !listens(first_handed_over)) {
        return -1;
    }
    fcntl(first_handed_over, F_SETFD, FD_CLOEXEC);
    fcntl(first_handed_over, F_SETFL, fcntl(first_handed_over, F_GETFL) | O_NONBLOCK);
    return first_handed_over;
}

void take_notify_socket() {
    const char *const path = std::getenv("NOTIFY_SOCKET");
    const std::size_t length = path != nullptr ? std::strlen(path) : 0;
    if (length > 1 && (*path == '/' || *path == '@') && length < sizeof(notified.sun_path)) {
        notified.sun_family = AF_UNIX;
        std::memcpy(notified.sun_path, path, length);
        if (*path == '@') {
            notified.sun_path[0] = '\0';  // a name that is no file
        }
        notified_size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length);
    }
    unsetenv("NOTIFY_SOCKET");
}

void notify(const char *state) {
    if (notified_size == 0) {
        return;
    }
    const int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sendto(fd, state, std::strlen(state), MSG_NOSIGNAL | MSG_DONTWAIT, reinterpret_cast<const sockaddr *>(&notified),
           notified_size);
    close(fd);
}

}  // namespace sqld::manager
