#include "pool.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include "clock.h"
#include "worker.h"

namespace sqld {

namespace {

/// After so many requests a worker is replaced, whatever it has become.
constexpr unsigned requests_of_a_worker = 1000;

/// Between the start of one that ends before it has served and the next.
constexpr std::int64_t pause_ms = 100;

/// What a killed service leaves is over, too.
void end_with(pid_t service) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != service) {
        _exit(1);  // it was over before
    }
}

bool is_busy(const Process &process) {
    return process.state == Process::serving || process.state == Process::waiting;
}

bool is_idle(const Process &process) {
    return process.state == Process::idle && !process.has_hung_up;
}

bool is_ready(const Process &process) {
    return is_idle(process) || process.state == Process::serving;
}

/// One that ends by itself has answered what it was asked.
void tell_end(const Process &process, int status) {
    if (!WIFSIGNALED(status)) {
        return;
    }
    if (is_busy(process)) {
        char outcome[64];
        std::snprintf(outcome, sizeof(outcome), "ended, signal %d has ended its process", WTERMSIG(status));
        tell(process.client, outcome);
    } else if (process.state == Process::idle) {
        syslog(LOG_WARNING, "signal %d has ended a worker", WTERMSIG(status));
    }
}

}  // namespace

bool Process::serve(const Connection &connection) {
    if (!hand_over(channel, connection.fd, *connection.request, connection.size())) {
        has_hung_up = true;
        return false;
    }
    was_used = true;
    state = serving;
    client = connection.client;
    began = connection.began;
    return true;
}

void Process::retire() {
    kill(id, SIGKILL);
    state = ending;
}

Pool::Pool(const Settings &settings, Counters &counters, void (*in_child)(void *), void *context)
    : settings_(settings), counters_(counters), in_child_(in_child), context_(context) {}

void Pool::fill() {
    while (!settings_.forks && count_ready() < static_cast<int>(settings_.workers) && now_ms() >= next_start_) {
        if (start() == nullptr) {
            return;
        }
    }
}

Process *Pool::start() {
    Process *const process = find(0);
    int ends[2];
    if (process == nullptr || !make_channel(ends)) {
        next_start_ = now_ms() + pause_ms;
        return nullptr;
    }
    const pid_t service = getpid();
    const pid_t id = fork();
    if (id == 0) {
        end_with(service);
        in_child_(context_);
        for (const Process &other : processes_) {
            if (other.state != Process::none) {
                close(other.channel);
            }
        }
        close(ends[0]);
        work(ends[1], settings_.forks ? 1 : requests_of_a_worker, settings_);
    }
    close(ends[1]);
    if (id < 0) {
        syslog(LOG_ERR, "cannot start a process: %m");
        close(ends[0]);
        next_start_ = now_ms() + pause_ms;
        return nullptr;
    }
    *process = {id, ends[0], Process::idle, false, false, {}, 0};
    return process;
}

/// @param id  0 for a free place
Process *Pool::find(pid_t id) {
    Process *const end = processes_ + most_processes;
    Process *const found = std::find_if(processes_, end, [id](const Process &process) { return process.id == id; });
    return found != end ? found : nullptr;
}

Process *Pool::find_idle() {
    for (Process &process : processes_) {
        if (is_idle(process)) {
            return &process;
        }
    }
    return settings_.forks && count_ready() < most_serving && now_ms() >= next_start_ ? start() : nullptr;
}

int Pool::served_for(pid_t client) const {
    return static_cast<int>(std::count_if(processes_, processes_ + most_processes, [client](const Process &process) {
        return process.state == Process::serving && process.client.process == client;
    }));
}

void Pool::ask(pollfd *asked) const {
    for (int i = 0; i < most_processes; ++i) {
        const bool speaks = !processes_[i].has_hung_up && (is_ready(processes_[i]) || is_busy(processes_[i]));
        asked[i] = {speaks ? processes_[i].channel : -1, POLLIN, 0};
    }
}

void Pool::hear(const pollfd *asked) {
    for (int i = 0; i < most_processes; ++i) {
        if (asked[i].fd >= 0 && asked[i].revents != 0) {
            hear(processes_[i]);
        }
    }
}

void Pool::hear(Process &process) {
    Report report{};
    Heard heard = Heard::nothing;
    while ((heard = sqld::hear(process.channel, report)) == Heard::report) {
        note(process, report);
    }
    process.has_hung_up = process.has_hung_up || heard == Heard::end;
}

void Pool::note(Process &process, const Report &report) {
    if (report.kind == Report::waits) {
        process.state = Process::waiting;
        limit_waiting();
        return;
    }
    counters_.refused += report.kind == Report::refused ? 1 : 0;
    process.state = report.is_last ? Process::ending : Process::idle;
}

/// Ends the one that has waited longest when there are too many.
void Pool::limit_waiting() {
    Process *oldest = nullptr;
    int count = 0;
    for (Process &process : processes_) {
        if (process.state == Process::waiting) {
            ++count;
            oldest = oldest == nullptr || process.began < oldest->began ? &process : oldest;
        }
    }
    if (count > most_waiting) {
        tell(oldest->client, "answered, its reply is not taken");
        oldest->retire();
    }
}

void Pool::reap() {
    int status = 0;
    for (pid_t id = waitpid(-1, &status, WNOHANG); id > 0; id = waitpid(-1, &status, WNOHANG)) {
        Process *const process = find(id);
        if (process == nullptr) {
            continue;
        }
        hear(*process);  // its last words
        tell_end(*process, status);
        if (!process->was_used) {
            next_start_ = now_ms() + pause_ms;
        }
        close(process->channel);
        *process = {};
    }
}

void Pool::end_overdue() {
    const std::int64_t patience_ms = std::int64_t{settings_.request_seconds} * 1000;
    for (Process &process : processes_) {
        if (is_busy(process) && process.began + patience_ms <= now_ms()) {
            hear(process);  // it may just be done
        }
        if (is_busy(process) && process.began + patience_ms <= now_ms()) {
            char outcome[64];
            std::snprintf(outcome, sizeof(outcome), "ended, it took more than %u seconds", settings_.request_seconds);
            tell(process.client, outcome);
            ++counters_.timed_out;
            process.retire();
        }
    }
}

std::int64_t Pool::next_deadline() const {
    std::int64_t next = next_start_ > now_ms() ? next_start_ : INT64_MAX;
    for (const Process &process : processes_) {
        if (is_busy(process)) {
            next = std::min(next, process.began + std::int64_t{settings_.request_seconds} * 1000);
        }
    }
    return next;
}

int Pool::count_ready() const {
    return static_cast<int>(std::count_if(processes_, processes_ + most_processes, is_ready));
}

bool Pool::has_busy() const {
    return std::any_of(processes_, processes_ + most_processes, is_busy);
}

bool Pool::is_empty() const {
    return std::all_of(processes_, processes_ + most_processes, [](const Process &one) { return one.id == 0; });
}

void Pool::dismiss() {
    for (Process &process : processes_) {
        if (process.state == Process::idle) {
            shutdown(process.channel, SHUT_RDWR);
            process.state = Process::ending;
        }
    }
}

void Pool::kill_all() {
    for (Process &process : processes_) {
        if (process.id != 0) {
            process.retire();
        }
    }
}

}  // namespace sqld
