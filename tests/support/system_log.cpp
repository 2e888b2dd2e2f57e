#include "support/system_log.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <stdexcept>

namespace support {

namespace {

constexpr char path[] = "/dev/log";

sockaddr_un log_address() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path, sizeof(path));
    return address;
}

/// "<28>Nov 21 08:00:00 routerdb-sqld[7]: text" as "28 text".
std::string shortened(const std::string &line) {
    const std::size_t priority_end = line.find('>');
    const std::size_t name_end = line.find("]: ");
    if (priority_end == std::string::npos || name_end == std::string::npos) {
        return line;
    }
    return line.substr(1, priority_end - 1) + " " + line.substr(name_end + 3);
}

}  // namespace

SystemLog::SystemLog() : fd_(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    const sockaddr_un address = log_address();
    if (bind(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0) {
        throw std::runtime_error("cannot bind /dev/log");
    }
}

SystemLog::~SystemLog() {
    close(fd_);
    unlink(path);
}

std::vector<std::string> SystemLog::lines() const {
    std::vector<std::string> lines;
    std::array<char, 8192> buffer{};
    for (;;) {
        const ssize_t size = recv(fd_, buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (size < 0) {
            return lines;
        }
        lines.push_back(shortened({buffer.data(), static_cast<std::size_t>(size)}));
    }
}

void SystemLog::fill() {
    const sockaddr_un address = log_address();
    const int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    while (sendto(fd, "full", 4, MSG_DONTWAIT, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 4) {
    }
    close(fd);
}

}  // namespace support
