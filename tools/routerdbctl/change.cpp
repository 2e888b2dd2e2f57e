#include "change.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>

#include "routerdb.h"

namespace ctl {

namespace {

/// Where the library's messages of one call go.
class Messages {
public:
    Messages() : fd_(memfd_create("messages", MFD_CLOEXEC)) {}
    Messages(const Messages &) = delete;
    Messages &operator=(const Messages &) = delete;
    ~Messages() { close(fd_); }

    void take_output() const {
        dup2(fd_, STDOUT_FILENO);
        dup2(fd_, STDERR_FILENO);
    }

    /// Hands on the first line.
    void read_into(Sql &message) const {
        char text[512];
        const ssize_t size = pread(fd_, text, sizeof(text) - 1, 0);
        text[size < 0 ? 0 : size] = '\0';
        text[std::strcspn(text, "\n")] = '\0';
        message.add("%s", text);
    }

private:
    int fd_;
};

std::int64_t now_ms() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

/// Waits until the other end is closed, by whatever ends the process that has it.
bool is_closed_within(int fd, unsigned seconds) {
    const std::int64_t end = now_ms() + std::int64_t{seconds} * 1000;
    pollfd asked{fd, POLLIN, 0};
    for (std::int64_t left = end - now_ms(); left > 0; left = end - now_ms()) {
        if (poll(&asked, 1, static_cast<int>(left)) > 0) {
            return true;
        }
    }
    return false;
}

[[noreturn]] void run_call(int (*call)(void *context), void *context, const Messages &messages,
                           WhenOverdue when_overdue) {
    if (when_overdue == WhenOverdue::leave) {
        setsid();  // what must not break off half way is not ended from the keyboard either
    }
    messages.take_output();
    const int result = call(context);
    std::fflush(stdout);
    _exit(result == 0 ? 0 : 1);
}

int execute(void *context) {
    return DbSqlExec(static_cast<char *>(context));
}

/// What SQLite says of the greatest number that it cannot turn round.
constexpr char what_a_guard_says[] = "integer overflow";

/// What SQLite says of a database that is not in a state to be changed, rather than of the statement.
bool is_about_the_database(const char *message) {
    constexpr const char *texts[] = {"cannot open", "locked",         "readonly",       "disk",
                                     "malformed",   "not a database", "unable to open", "out of memory"};
    for (const char *const text : texts) {
        if (std::strstr(message, text) != nullptr) {
            return true;
        }
    }
    return *message == '\0';
}

}  // namespace

Outcome call_apart(int (*call)(void *context), void *context, unsigned seconds, WhenOverdue when_overdue,
                   Sql &message) {
    const Messages messages;
    int ends[2];
    std::fflush(stdout);
    if (pipe2(ends, O_CLOEXEC) != 0) {
        message.add("%s", std::strerror(errno));
        return Outcome::failed;
    }
    const pid_t process = fork();
    if (process == 0) {
        run_call(call, context, messages, when_overdue);
    }
    close(ends[1]);
    const bool is_over = process < 0 || is_closed_within(ends[0], seconds);
    close(ends[0]);
    if (!is_over && when_overdue == WhenOverdue::leave) {
        return Outcome::overdue;
    }
    if (!is_over) {
        kill(process, SIGKILL);
    }
    int status = 1;
    if (process > 0) {
        waitpid(process, &status, 0);
    }
    messages.read_into(message);
    return !is_over ? Outcome::overdue : status == 0 ? Outcome::done : Outcome::failed;
}

Sql &add_guard(Sql &sql, int rows) {
    return sql.add(" SELECT CASE changes() WHEN %d THEN 0 ELSE abs(-9223372036854775807 - 1) END;", rows);
}

Status look(const Invocation &invocation, const Database &database, const Sql &proof) {
    if (proof.is_empty()) {
        return fail(Status::unknown, "it took more than %u s and was ended: look whether it has happened",
                    invocation.seconds());
    }
    Query query(database, proof.text());
    if (query.next() && query.number(0) != 0) {
        return Status::done;
    }
    return query.status() != Status::done
               ? fail(Status::unknown, "whether it has happened cannot be seen")
               : fail(Status::unreachable,
                      "the database was not free within %u s; nothing was changed, and will not be later (see "
                      "\"routerdbctl lock\")",
                      invocation.seconds());
}

Status change(const Invocation &invocation, const Database &database, const char *sql, const Sql &proof) {
    Sql message;
    Sql text;
    text.add("%s", sql);  // the function takes a text that could be written to
    switch (call_apart(execute, const_cast<char *>(text.text()), invocation.seconds(), WhenOverdue::end, message)) {
        case Outcome::done:
            return Status::done;
        case Outcome::overdue:
            return look(invocation, database, proof);
        default:
            break;
    }
    constexpr char start[] = "cannot exec sql cmdline, Error: ";
    const char *reason = message.text();
    reason += std::strncmp(reason, start, sizeof(start) - 1) == 0 ? sizeof(start) - 1 : 0;
    if (std::strcmp(reason, what_a_guard_says) == 0) {
        return Status::refused;
    }
    return fail(is_about_the_database(reason) ? Status::unreachable : Status::refused, "nothing was changed: %s",
                *reason != '\0' ? reason : "the database cannot be written");
}

}  // namespace ctl
