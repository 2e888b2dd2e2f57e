#include "server.h"

#include <sys/socket.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "clock.h"
#include "manager.h"
#include "rights.h"

namespace sqld {

namespace {

constexpr std::int64_t grace_ms = 2'000;

volatile sig_atomic_t stopping = 0;
volatile sig_atomic_t asked_for_counters = 0;

extern "C" void on_stop(int /*signal*/) {
    stopping = 1;
}

extern "C" void on_question(int /*signal*/) {
    asked_for_counters = 1;
}

extern "C" void on_child(int /*signal*/) {}  // it only has to end the wait

constexpr struct {
    int signal;
    void (*handler)(int);
} signals[] = {{SIGTERM, on_stop}, {SIGINT, on_stop}, {SIGUSR1, on_question}, {SIGCHLD, on_child}};

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

int served_for(void *pool, pid_t process) {
    return static_cast<const Pool *>(pool)->served_for(process);
}

/// Time left, as a wait takes it.
timespec until(std::int64_t deadline) {
    const std::int64_t left = std::max<std::int64_t>(deadline - now_ms(), 0);
    return {static_cast<time_t>(left / 1000), static_cast<long>(left % 1000 * 1'000'000)};
}

constexpr int most_asked = 1 + most_connections + most_processes;

/// Waits for any of them, leaving out those without a descriptor: the system takes no more entries than a process may
/// have descriptors.
/// @return whether there is something to hear
bool wait_for(pollfd (&asked)[most_asked], std::int64_t deadline, const sigset_t &mask) {
    pollfd open[most_asked];
    pollfd *const end =
        std::copy_if(asked, asked + most_asked, open, [](const pollfd &entry) { return entry.fd >= 0; });
    const timespec left = until(deadline);
    if (ppoll(open, static_cast<nfds_t>(end - open), &left, &mask) <= 0) {
        return false;
    }
    const pollfd *heard = open;
    for (pollfd &entry : asked) {
        entry.revents = entry.fd >= 0 ? (heard++)->revents : short{0};
    }
    return true;
}

}  // namespace

Server::Server(const Settings &settings)
    : settings_(settings),
      connections_(counters_, settings_.request_seconds),
      pool_(
          settings_, counters_, [](void *server) { static_cast<Server *>(server)->leave_to_service(); }, this) {}

bool Server::start() {
    take_signals();  // from the first connection on, the end is an orderly one
    manager::take_notify_socket();
    if (!connections_.is_ready()) {
        syslog(LOG_ERR, "no memory for requests: %m");
        return false;
    }
    return listener_.start(settings_) && (settings_.user == nullptr || become_user(settings_.user));
}

void Server::take_signals() {
    sigset_t ours;
    sigemptyset(&ours);
    for (const auto &entry : signals) {
        sigaddset(&ours, entry.signal);
    }
    sigprocmask(SIG_BLOCK, &ours, &outside_);  // they come during the wait only, where nothing can be missed
    for (const auto &entry : signals) {
        handle(entry.signal, entry.handler);
    }
}

/// In a process that has just been started.
void Server::leave_to_service() {
    listener_.abandon();
    connections_.close_all();
    for (const auto &entry : signals) {
        handle(entry.signal, SIG_DFL);
    }
    sigprocmask(SIG_SETMASK, &outside_, nullptr);
}

void Server::run() {
    pool_.fill();
    manager::notify("READY=1\nSTATUS=Serving");
    while (stopping == 0) {
        round();
    }
    manager::notify("STOPPING=1");
    finish();
}

/// Requests under way are served, others are not taken any more.
void Server::finish() {
    listener_.stop();
    end_ = now_ms() + grace_ms;
    while ((!connections_.is_empty() || pool_.has_busy()) && now_ms() < end_) {
        round();
    }
    connections_.close_all();
    pool_.dismiss();
    while (!pool_.is_empty()) {
        const bool is_over = now_ms() >= end_;
        if (is_over) {
            pool_.kill_all();
        }
        const timespec left = until(end_);
        ppoll(nullptr, 0, is_over ? nullptr : &left, &outside_);
        pool_.reap();
    }
}

/// Waits, takes what has come, and hands it out.
void Server::round() {
    pollfd asked[most_asked];
    pollfd *const of_connections = asked + 1;
    pollfd *const of_processes = of_connections + most_connections;
    asked[0] = {connections_.take_more() ? listener_.fd() : -1, POLLIN, 0};
    connections_.ask(of_connections);
    pool_.ask(of_processes);
    if (wait_for(asked, std::min(next_deadline(), now_ms() + 60'000), outside_)) {
        pool_.hear(of_processes);
        connections_.receive(of_connections);
        if (asked[0].revents != 0) {
            accept_one();
        }
    }
    pool_.reap();
    pool_.end_overdue();
    connections_.refuse_overdue();
    pool_.fill();
    hand_out();
    if (asked_for_counters != 0) {
        asked_for_counters = 0;
        tell_counters();
    }
}

std::int64_t Server::next_deadline() const {
    return std::min({connections_.next_deadline(), pool_.next_deadline(), end_});
}

/// One at a time: those who have come before are heard first.
void Server::accept_one() {
    const int fd = accept4(listener_.fd(), nullptr, nullptr, SOCK_CLOEXEC);
    if (fd >= 0) {
        connections_.add(fd);
    } else if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED && !connections_.give_up_oldest()) {
        syslog(LOG_ERR, "cannot accept a connection: %m");
        usleep(10'000);  // what is short may come back
    }
}

void Server::hand_out() {
    for (;;) {
        Connection *const connection = connections_.next_whole(served_for, &pool_);
        Process *const process = connection != nullptr ? pool_.find_idle() : nullptr;
        if (process == nullptr) {
            return;
        }
        if (process->serve(*connection)) {
            counters_.note_wait(now_ms() - connection->began);
            connection->drop();
        }
    }
}

void Server::tell_counters() const {
    char text[192];
    std::snprintf(text, sizeof(text),
                  "STATUS=%lu requests, %lu refused, %lu timed out, %d workers, longest wait %lld ms",
                  counters_.requests, counters_.refused, counters_.timed_out, pool_.count_ready(),
                  static_cast<long long>(counters_.longest_wait_ms));
    manager::notify(text);
    syslog(LOG_INFO, "%s", text + sizeof("STATUS=") - 1);
}

}  // namespace sqld
