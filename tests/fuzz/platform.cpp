// The calls that the library's objects make to the platform: they are noted, and few of them are made.
#include "fuzz/platform.h"

#include <iconv.h>
#include <signal.h>
#include <spawn.h>
#include <sqlite3.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <set>
#include <utility>

#include "fuzz/fuzz.h"

namespace fuzz {

namespace {

/// What happens during one input.
struct Watch {
    bool foreign_commands = false;
    unsigned sleeps = 0;
    std::vector<std::string> commands;
    std::function<void(const std::string &, int)> on_command;
    int output = -1;  // of the program that is started next
    std::string reply;
    int service = -1;  // its end of the connection
    std::vector<std::string> statements;
    std::set<FILE *> streams;
    std::set<iconv_t> converters;
    std::set<sqlite3 *> connections;
    std::set<sqlite3 *> failed_connections;
};

thread_local Watch *watching = nullptr;

/// Lets a call through as it is, because nobody watches or the watcher itself makes it.
class Pause {
public:
    Pause() : paused_(std::exchange(watching, nullptr)) {}
    Pause(const Pause &) = delete;
    Pause &operator=(const Pause &) = delete;
    ~Pause() { watching = paused_; }

    Watch *operator->() const { return paused_; }

private:
    Watch *paused_;
};

bool is_usual(const std::string &command) {
    return command.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 _-/.#=>&") ==
           std::string::npos;
}

void note_command(const std::string &command) {
    const Pause watch;
    require(watch->foreign_commands || is_usual(command), "a command with foreign characters: " + command);
    watch->commands.push_back(command);
    if (watch->on_command) {
        watch->on_command(command, watch->output);
    }
    watch->output = -1;
}

void take_statement() {
    constexpr std::size_t header_size = 12;
    if (watching == nullptr || watching->service < 0) {
        return;
    }
    std::string text(1 << 16, '\0');
    const ssize_t size = recv(watching->service, text.data(), text.size(), MSG_DONTWAIT);
    if (size >= static_cast<ssize_t>(header_size)) {
        watching->statements.push_back(text.substr(header_size, static_cast<std::size_t>(size) - header_size));
    }
    close(std::exchange(watching->service, -1));
}

/// Looks at what is left, and closes it where leaving it is promised.
template <typename Handles, typename Close>
void close_left(Handles &handles, const char *fault, Close close_one) {
    require(handles.empty() || !build_profile.closes_its_own, fault);
    for (const auto handle : std::exchange(handles, {})) {
        close_one(handle);
    }
}

}  // namespace

namespace platform {

void watch() {
    static Watch all;
    all = Watch();
    watching = &all;
}

void unwatch() {
    take_statement();
    Watch *const left = std::exchange(watching, nullptr);
    close_left(left->streams, "a stream is left open", [](FILE *stream) { std::fclose(stream); });
    close_left(left->converters, "a converter is left open", [](iconv_t converter) { iconv_close(converter); });
    require(left->connections.empty(), "a connection is left open");
    close_left(left->failed_connections, "a failed connection is left open", [](sqlite3 *db) { sqlite3_close(db); });
}

}  // namespace platform

void allow_foreign_commands() {
    watching->foreign_commands = true;
}

const std::vector<std::string> &commands() {
    return watching->commands;
}

void on_command(std::function<void(const std::string &, int)> action) {
    watching->on_command = std::move(action);
}

void answer_with(std::string_view reply) {
    watching->reply = std::string(reply);
}

void limit_statements(sqlite3 *db) {
    constexpr int steps_between_looks = 1000;
    static thread_local int looks = 0;
    looks = 0;  // one connection works at a time
    sqlite3_progress_handler(
        db, steps_between_looks,
        [](void * /*unused*/) {
            constexpr int most_looks = 2000;
            return ++looks > most_looks ? 1 : 0;
        },
        nullptr);
}

const std::vector<std::string> &statements() {
    take_statement();
    return watching->statements;
}

}  // namespace fuzz

using namespace fuzz;

// The names are the linker's. NOLINTBEGIN(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)

/// A function that is replaced while somebody watches.
#define WRAP(Result, function, parameters, arguments, ...) \
    Result __real_##function parameters;                   \
    Result __wrap_##function parameters;                   \
    Result __wrap_##function parameters {                  \
        if (watching == nullptr) {                         \
            return __real_##function arguments;            \
        }                                                  \
        __VA_ARGS__                                        \
    }

extern "C" {

WRAP(int, usleep, (useconds_t microseconds), (microseconds), {
    constexpr unsigned without_end = 10'000;  // modern gives up before
    require(++watching->sleeps < without_end, "it tries again without end");
    return 0;
})

WRAP(void, sync, (), (), {})

WRAP(int, kill, (pid_t process, int signal), (process, signal), { return 0; })

WRAP(int, system, (const char *command), (command), {
    note_command(command);
    return 0;
})

WRAP(int, posix_spawn_file_actions_adddup2, (posix_spawn_file_actions_t * actions, int from, int to),
     (actions, from, to), {
         watching->output = from;
         return __real_posix_spawn_file_actions_adddup2(actions, from, to);
     })

WRAP(int, posix_spawnp,
     (pid_t * process, const char *program, const posix_spawn_file_actions_t *actions,
      const posix_spawnattr_t *attributes, char *const *arguments, char *const *environment),
     (process, program, actions, attributes, arguments, environment), {
         std::string command = program;
         for (char *const *argument = arguments + 1; *argument != nullptr; ++argument) {
             command += std::string(" ") + *argument;
         }
         note_command(command);
         *process = 1;
         return 0;
     })

WRAP(pid_t, waitpid, (pid_t process, int *status, int options), (process, status, options), { return process; })

[[gnu::format(printf, 2, 3)]] void __wrap_syslog(int priority, const char *format, ...);
void __wrap_syslog(int /*priority*/, const char *format, ...) {
    char line[4096];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);  // which reads what would be logged
    va_end(arguments);
}

WRAP(FILE *, fopen, (const char *path, const char *mode), (path, mode), {
    FILE *const stream = __real_fopen(path, mode);
    if (stream != nullptr) {
        watching->streams.insert(stream);
    }
    return stream;
})

WRAP(FILE *, fdopen, (int fd, const char *mode), (fd, mode), {
    FILE *const stream = __real_fdopen(fd, mode);
    if (stream != nullptr) {
        watching->streams.insert(stream);
    }
    return stream;
})

WRAP(int, fclose, (FILE * stream), (stream), {
    watching->streams.erase(stream);
    return __real_fclose(stream);
})

WRAP(iconv_t, iconv_open, (const char *to, const char *from), (to, from), {
    const iconv_t converter = __real_iconv_open(to, from);
    watching->converters.insert(converter);
    return converter;
})

WRAP(int, iconv_close, (iconv_t converter), (converter), {
    watching->converters.erase(converter);
    return __real_iconv_close(converter);
})

WRAP(int, sqlite3_open, (const char *path, sqlite3 **db), (path, db), {
    const int code = __real_sqlite3_open(path, db);
    (code == SQLITE_OK ? watching->connections : watching->failed_connections).insert(*db);
    limit_statements(*db);
    return code;
})

WRAP(int, sqlite3_close, (sqlite3 * db), (db), {
    require(db == nullptr || sqlite3_next_stmt(db, nullptr) == nullptr, "a statement is left open");
    watching->connections.erase(db);
    watching->failed_connections.erase(db);
    return __real_sqlite3_close(db);
})

WRAP(int, socket, (int domain, int type, int protocol), (domain, type, protocol), {
    take_statement();
    int ends[2];
    require(socketpair(domain, type | SOCK_CLOEXEC, protocol, ends) == 0, "no sockets to be had");
    watching->service = ends[1];
    return ends[0];
})

WRAP(int, connect, (int fd, const struct sockaddr *address, socklen_t length), (fd, address, length), {
    constexpr int room = 1 << 20;
    setsockopt(watching->service, SOL_SOCKET, SO_SNDBUF, &room, sizeof(room));
    send(watching->service, watching->reply.data(), watching->reply.size(), MSG_DONTWAIT);
    shutdown(watching->service, SHUT_WR);
    return 0;
})

}  // extern "C"

// NOLINTEND(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
