#include "server.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "answer.h"
#include "core/paths.h"

namespace sqld {

namespace {

using routerdb::paths::service_socket;

volatile sig_atomic_t stopping = 0;

extern "C" void on_stop(int /*signal*/) {
    stopping = 1;
}

extern "C" void on_child(int /*signal*/) {}  // it only has to end the wait

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

sockaddr_un service_address() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    static_assert(sizeof(service_socket) <= sizeof(address.sun_path));
    std::memcpy(address.sun_path, service_socket, sizeof(service_socket));
    return address;
}

bool somebody_listens() {
    const sockaddr_un address = service_address();
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool connected = fd >= 0 && connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    close(fd);
    return connected;
}

[[noreturn]] void serve_in_child(int peer, const sigset_t &mask) {
    handle(SIGTERM, SIG_DFL);
    handle(SIGINT, SIG_DFL);
    handle(SIGCHLD, SIG_DFL);
    sigprocmask(SIG_SETMASK, &mask, nullptr);
    const bool delivered = answer(peer);
    std::fflush(nullptr);
    _exit(delivered ? 0 : 1);
}

}  // namespace

Server::~Server() {
    if (fd_ >= 0) {
        close(fd_);
        unlink(service_socket);
    }
}

bool Server::listen() {
    take_signals();  // from the first connection on, the end is an orderly one
    if (somebody_listens()) {
        syslog(LOG_ERR, "%s is served already", service_socket);
        return false;
    }
    unlink(service_socket);
    const mode_t mask = umask(0117);
    const bool bound = bind_socket();
    umask(mask);
    if (!bound) {
        syslog(LOG_ERR, "cannot listen on %s: %m", service_socket);
    }
    return bound;
}

void Server::take_signals() {
    sigset_t ours;
    sigemptyset(&ours);
    sigaddset(&ours, SIGTERM);
    sigaddset(&ours, SIGINT);
    sigaddset(&ours, SIGCHLD);
    sigprocmask(SIG_BLOCK, &ours, &outside_);  // they come during the wait only, where nothing can be missed
    handle(SIGTERM, on_stop);
    handle(SIGINT, on_stop);
    handle(SIGCHLD, on_child);
}

bool Server::bind_socket() {
    const sockaddr_un address = service_address();
    fd_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    return fd_ >= 0 && bind(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0 &&
           ::listen(fd_, SOMAXCONN) == 0;
}

void Server::run() {
    while (stopping == 0) {
        reap(WNOHANG);
        pollfd listener{children_ < most_children ? fd_ : -1, POLLIN, 0};
        if (ppoll(&listener, 1, nullptr, &outside_) > 0) {
            accept_one();
        }
    }
    close(fd_);  // new connections are refused from here on
    unlink(service_socket);
    fd_ = -1;
    reap(0);
}

void Server::accept_one() {
    const int peer = accept4(fd_, nullptr, nullptr, SOCK_CLOEXEC);
    if (peer < 0) {
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED) {
            syslog(LOG_ERR, "cannot accept a connection: %m");
            usleep(10'000);  // what is short may come back
        }
        return;
    }
    const pid_t child = fork();
    if (child == 0) {
        close(fd_);
        serve_in_child(peer, outside_);
    }
    if (child < 0) {
        syslog(LOG_ERR, "cannot start a process for a connection: %m");
    } else {
        ++children_;
    }
    close(peer);
}

void Server::reap(int options) {
    int status = 0;
    while (children_ > 0 && waitpid(-1, &status, options) > 0) {
        --children_;
        if (WIFSIGNALED(status)) {
            syslog(LOG_ERR, "a request ended its process with signal %d", WTERMSIG(status));
        }
    }
}

}  // namespace sqld
