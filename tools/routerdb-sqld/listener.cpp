#include "listener.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "clock.h"
#include "core/paths.h"
#include "manager.h"

namespace sqld {

namespace {

constexpr std::int64_t patience_ms = 1'000;

using routerdb::paths::new_service_socket;
using routerdb::paths::service_lock;
using routerdb::paths::service_socket;

template <std::size_t size>
sockaddr_un address_of(const char (&path)[size]) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    static_assert(size <= sizeof(address.sun_path));
    std::memcpy(address.sun_path, path, size);
    return address;
}

/// Services like this one have the lock. One of another kind does not.
bool somebody_listens() {
    const sockaddr_un address = address_of(service_socket);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool connected = fd >= 0 && connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    close(fd);
    return connected;
}

}  // namespace

Listener::~Listener() {
    stop();
    if (lock_ >= 0) {
        unlink(service_lock);
        close(lock_);
    }
}

bool Listener::start(const Settings &settings) {
    fd_ = manager::take_socket();
    if (!become_the_one()) {
        syslog(LOG_ERR, "%s is served already", service_socket);
        return false;
    }
    if (fd_ >= 0) {
        return true;
    }
    unlink(new_service_socket);
    const mode_t mask = umask(0117);
    is_own_ = bind_socket(settings);
    umask(mask);
    if (!is_own_) {
        syslog(LOG_ERR, "cannot listen on %s: %m", service_socket);
        unlink(new_service_socket);
    }
    return is_own_;
}

/// The workers of a service that was killed have what they inherited until they end, too.
bool Listener::become_the_one() {
    for (const std::int64_t end = now_ms() + patience_ms; now_ms() < end; usleep(10'000)) {
        if ((lock_ >= 0 || take_lock()) && (fd_ >= 0 || !somebody_listens())) {
            return true;
        }
    }
    return false;
}

/// Of services that start at the same moment one gets it. Without its file, as where it cannot be made, all do.
bool Listener::take_lock() {
    for (;;) {
        const int file = open(service_lock, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (file < 0) {
            return true;
        }
        if (flock(file, LOCK_EX | LOCK_NB) != 0) {
            close(file);
            return false;
        }
        struct stat locked {};
        struct stat there {};
        if (fstat(file, &locked) == 0 && stat(service_lock, &there) == 0 && locked.st_ino == there.st_ino) {
            lock_ = file;
            return true;
        }
        close(file);  // that of a service which has ended meanwhile, and removed it
    }
}

bool Listener::bind_socket(const Settings &settings) {
    const sockaddr_un address = address_of(new_service_socket);
    fd_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    return fd_ >= 0 && bind(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0 &&
           (settings.socket_group == nobody ||
            chown(new_service_socket, static_cast<uid_t>(-1), settings.socket_group) == 0) &&
           listen(fd_, SOMAXCONN) == 0 && rename(new_service_socket, service_socket) == 0;
}

void Listener::stop() {
    if (fd_ >= 0) {
        close(fd_);
    }
    if (is_own_) {
        unlink(service_socket);
    }
    fd_ = -1;
    is_own_ = false;
}

void Listener::abandon() {
    close(fd_);
    close(lock_);
    fd_ = -1;
    lock_ = -1;
    is_own_ = false;
}

}  // namespace sqld
