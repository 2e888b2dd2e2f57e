#include "server.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "answer.h"
#include "core/paths.h"

namespace sqld {

namespace {

using routerdb::paths::new_service_socket;
using routerdb::paths::service_lock;
using routerdb::paths::service_socket;

volatile sig_atomic_t stopping = 0;
volatile sig_atomic_t overdue = 0;  // those being served when it stops

extern "C" void on_stop(int /*signal*/) {
    stopping = 1;
}

extern "C" void on_alarm(int /*signal*/) {
    overdue = 1;
}

extern "C" void on_child(int /*signal*/) {}  // it only has to end the wait

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

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

/// After a request to stop.
constexpr unsigned grace_seconds = 2;

/// What a killed service leaves is over, too.
void end_with(pid_t service) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != service) {
        _exit(1);  // it was over before
    }
}

[[noreturn]] void serve_in_child(int peer, pid_t service, const sigset_t &mask, const Settings &settings) {
    end_with(service);
    handle(SIGTERM, SIG_DFL);
    handle(SIGINT, SIG_DFL);
    handle(SIGALRM, SIG_DFL);
    handle(SIGCHLD, SIG_DFL);
    alarm(settings.request_seconds);  // the lock file and SQLite's locks go with the process
    sigprocmask(SIG_SETMASK, &mask, nullptr);
    const bool delivered = answer(peer, settings);
    std::fflush(nullptr);
    _exit(delivered ? 0 : 1);
}

}  // namespace

Server::~Server() {
    if (fd_ >= 0) {
        close(fd_);
        unlink(service_socket);
    }
    if (lock_ >= 0) {
        unlink(service_lock);
        close(lock_);
    }
}

bool Server::listen() {
    take_signals();  // from the first connection on, the end is an orderly one
    if (!take_lock() || somebody_listens()) {
        syslog(LOG_ERR, "%s is served already", service_socket);
        return false;
    }
    unlink(new_service_socket);
    const mode_t mask = umask(0117);
    const bool bound = bind_socket();
    umask(mask);
    if (!bound) {
        syslog(LOG_ERR, "cannot listen on %s: %m", service_socket);
        unlink(new_service_socket);
    }
    return bound;
}

/// Of services that start at the same moment one gets it. Without its file, as where it cannot be made, all do.
bool Server::take_lock() {
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

void Server::take_signals() {
    sigset_t ours;
    sigemptyset(&ours);
    sigaddset(&ours, SIGTERM);
    sigaddset(&ours, SIGINT);
    sigaddset(&ours, SIGALRM);
    sigaddset(&ours, SIGCHLD);
    sigprocmask(SIG_BLOCK, &ours, &outside_);  // they come during the wait only, where nothing can be missed
    handle(SIGTERM, on_stop);
    handle(SIGINT, on_stop);
    handle(SIGALRM, on_alarm);
    handle(SIGCHLD, on_child);
}

bool Server::bind_socket() {
    const sockaddr_un address = address_of(new_service_socket);
    fd_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    return fd_ >= 0 && bind(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0 &&
           ::listen(fd_, SOMAXCONN) == 0 && rename(new_service_socket, service_socket) == 0;
}

void Server::run() {
    while (stopping == 0) {
        reap();
        pollfd listener{free_place() != nullptr ? fd_ : -1, POLLIN, 0};
        if (ppoll(&listener, 1, nullptr, &outside_) > 0) {
            accept_one();
        }
    }
    close(fd_);  // new connections are refused from here on
    unlink(service_socket);
    fd_ = -1;
    end_children();
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
    const pid_t service = getpid();
    const pid_t child = fork();
    if (child == 0) {
        close(fd_);
        close(lock_);
        serve_in_child(peer, service, outside_, settings_);
    }
    if (child < 0) {
        syslog(LOG_ERR, "cannot start a process for a connection: %m");
    } else {
        *free_place() = child;
    }
    close(peer);
}

/// Where the next child is noted; null while there are as many as there may be.
pid_t *Server::free_place() {
    pid_t *const end = children_ + most_children;
    pid_t *const place = std::find(children_, end, 0);
    return place != end ? place : nullptr;
}

void Server::reap() {
    int status = 0;
    for (pid_t child = waitpid(-1, &status, WNOHANG); child > 0; child = waitpid(-1, &status, WNOHANG)) {
        std::replace(children_, children_ + most_children, child, 0);
        if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) {
            syslog(LOG_ERR, "a request took more than %u seconds, its process was ended", settings_.request_seconds);
        } else if (WIFSIGNALED(status)) {
            syslog(LOG_ERR, "a request ended its process with signal %d", WTERMSIG(status));
        }
    }
}

bool Server::has_children() const {
    return std::any_of(children_, children_ + most_children, [](pid_t child) { return child != 0; });
}

/// Waits for those that are being served, and ends them when the time is over.
void Server::end_children() {
    alarm(grace_seconds);
    for (reap(); has_children(); reap()) {
        ppoll(nullptr, 0, nullptr, &outside_);  // until a child or the time ends
        for (const pid_t child : children_) {
            if (overdue != 0 && child != 0) {
                kill(child, SIGKILL);
            }
        }
    }
}

}  // namespace sqld
