#include "soak/system_calls.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <set>

#include "soak/soak.h"
#include "support/database.h"
#include "support/process.h"

namespace soak {

namespace {

constexpr char trace_file[] = "/tmp/system-calls";
constexpr char mark_name[] = "getpgid";

/// Those that cannot fail, or whose failure would not be a real one: a descriptor that was not closed is left, a
/// command that was not waited for goes on, and the C library takes any answer to "brk" for an address.
const std::set<std::string> left_alone = {
    "brk",          "clock_gettime",  "clock_nanosleep", "close",       "exit_group", "futex",
    "getegid",      "geteuid",        "getgid",          "getpid",      "getppid",    "gettid",
    "gettimeofday", "getuid",         "munmap",          "nanosleep",   "recvmsg",    "restart_syscall",
    "rt_sigaction", "rt_sigprocmask", "rt_sigreturn",    "sched_yield", "time",       "wait4",
};

const std::set<std::string> interruptible = {
    "accept4", "connect",  "fcntl",   "fdatasync", "fsync",   "openat", "poll",  "pread64", "pwrite64",
    "read",    "recvfrom", "recvmsg", "select",    "sendmsg", "sendto", "wait4", "write",
};

/// What a call says when it fails; the others say that of a broken disk.
const std::map<std::string, std::string> reasons = {
    {"clone", "EAGAIN"},  {"clone3", "EAGAIN"}, {"connect", "ECONNREFUSED"}, {"mmap", "ENOMEM"},
    {"mmap2", "ENOMEM"},  {"mremap", "ENOMEM"}, {"openat", "EMFILE"},        {"pwrite64", "ENOSPC"},
    {"socket", "EMFILE"}, {"unlink", "EACCES"}, {"vfork", "EAGAIN"},         {"write", "ENOSPC"},
};

std::string reason_of(const std::string &name, How how) {
    const auto reason = reasons.find(name);
    return how == How::interrupted ? "EINTR" : reason != reasons.end() ? reason->second : "EIO";
}

bool can_fail(const std::string &name, How how) {
    return how == How::interrupted ? interruptible.count(name) != 0 : left_alone.count(name) == 0;
}

/// Gives the process, if it is told, and the name of each call to `take`. Signals, ends, and second halves are no
/// calls.
void read_calls(const std::function<void(const std::string &process, const std::string &name)> &take) {
    std::ifstream lines(trace_file);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t begin = std::min(line.find_first_not_of("0123456789 "), line.size());
        const std::size_t end =
            std::min(line.find_first_not_of("abcdefghijklmnopqrstuvwxyz_0123456789", begin), line.size());
        if (end != begin) {
            take(line.substr(0, begin), line.substr(begin, end - begin));
        }
    }
}

}  // namespace

void mark() {
    getpgid(0);
}

Ranges read_marked_calls() {
    Ranges ranges;
    long marks = 0;
    read_calls([&](const std::string &, const std::string &name) {
        if (name == mark_name) {
            ++marks;
        } else if (marks < 2) {
            Range &range = ranges[name];
            range.before += marks == 0 ? 1 : 0;
            ++range.end;
        }
    });
    EXPECT_EQ(marks, 2);
    return ranges;
}

Ranges read_all_calls() {
    std::map<std::string, long> counts;
    Ranges ranges;
    read_calls([&](const std::string &process, const std::string &name) {
        long &most = ranges[name].end;
        most = std::max(most, ++counts[process + name]);
    });
    return ranges;
}

std::vector<Point> draw_points(const Ranges &ranges, How how, std::mt19937 &random, Share share) {
    const long minutes = setting("SOAK_MINUTES", 0);
    const long every_nth = among_ordinary_tests() ? share.among_tests : share.in_half_an_hour * 30 / minutes;
    const auto every = static_cast<unsigned>(std::max(every_nth, 1L));
    std::vector<Point> points;
    unsigned left_out = draw(random, every);
    for (const auto &[name, range] : ranges) {
        for (long n = range.before + 1; n <= range.end && can_fail(name, how); ++n) {
            if (left_out == 0) {
                points.push_back({name, n, range.end});
            }
            left_out = left_out == 0 ? every - 1 : left_out - 1;
        }
    }
    return points;
}

std::string fault(const Point &point, How how) {
    const long last = how == How::from_there_on ? point.last : point.n;
    return "inject=" + point.name + ":error=" + reason_of(point.name, how) + ":when=" + std::to_string(point.n) + ".." +
           std::to_string(last);
}

bool become_traced(const std::vector<std::string> &options, const std::vector<std::string> &program) {
    std::vector<std::string> command = {"strace", "-qq", "-E", "ASAN_OPTIONS=detect_leaks=0", "-o", trace_file};
    command.insert(command.end(), options.begin(), options.end());
    command.insert(command.end(), program.begin(), program.end());
    return std::freopen(traced_output, "w", stdout) != nullptr && dup2(STDOUT_FILENO, STDERR_FILENO) >= 0 &&
           support::become(command);
}

bool has_failed() {
    return support::file_content(trace_file).find("(INJECTED)") != std::string::npos;
}

}  // namespace soak
