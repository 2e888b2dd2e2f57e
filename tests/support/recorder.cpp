#include "support/recorder.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <iconv.h>
#include <signal.h>
#include <spawn.h>
#include <sqlite3.h>
#include <sys/random.h>
#include <sys/socket.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <utility>

#include "support/database.h"

namespace support {

namespace {

struct Recording {
    std::vector<std::string> calls;
    std::map<std::string, std::deque<int>, std::less<>> answers;
    std::function<void(const std::string &)> watcher;
    bool run_commands = true;
    bool keep_connections = false;
    int lock_file = -1;
    bool inside = false;  // one of the recorder's own calls, or one that a recorded call made
};

thread_local Recording *recording = nullptr;

/// Notes a call and keeps those that it makes in turn from being noted.
class Call {
public:
    Call() : noted_(recording != nullptr && !recording->inside) {
        if (noted_) {
            recording->inside = true;
        }
    }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;
    ~Call() {
        if (noted_) {
            recording->inside = false;
        }
    }

    explicit operator bool() const { return noted_; }

    void note(const std::string &line) const {
        if (noted_) {
            recording->calls.push_back(line);
            if (recording->watcher) {
                recording->watcher(line);
            }
        }
    }

    /// @return whether an answer was planned, which then is in `result`
    bool answered(std::string_view function, int &result) const {
        if (!noted_) {
            return false;
        }
        const auto planned = recording->answers.find(function);
        if (planned == recording->answers.end() || planned->second.empty()) {
            return false;
        }
        result = planned->second.front();
        planned->second.pop_front();
        return result != Recorder::really;
    }

private:
    bool noted_;
};

template <typename Function>
Function *real(Function * /*ours*/, const char *name) {
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

#define REAL(function) real(&::function, #function)

/// -1 with the planned errno.
int refused(int error) {
    errno = error;
    return -1;
}

bool is_lock_file(int fd) {
    return recording != nullptr && fd >= 0 && fd == recording->lock_file;
}

}  // namespace

Recorder::Recorder() {
    recording = new Recording;
}

Recorder::~Recorder() {
    delete recording;
    recording = nullptr;
}

void Recorder::answer(std::string_view function, std::initializer_list<int> results) {
    std::deque<int> &planned = recording->answers[std::string(function)];
    planned.insert(planned.end(), results);
}

void Recorder::watch(std::function<void(const std::string &)> watcher) {
    recording->watcher = std::move(watcher);
}

void Recorder::let_connections_be_kept() {
    recording->keep_connections = true;
}

void Recorder::keep_commands_from_running() {
    recording->run_commands = false;
}

const std::vector<std::string> &Recorder::calls() const {
    return recording->calls;
}

std::vector<std::string> Recorder::calls(std::initializer_list<std::string_view> words) const {
    std::vector<std::string> found;
    for (const std::string &call : recording->calls) {
        for (const std::string_view word : words) {
            if (call.compare(0, word.size(), word) == 0) {
                found.push_back(call);
                break;
            }
        }
    }
    return found;
}

std::vector<unsigned> Recorder::sleeps() const {
    std::vector<unsigned> lengths;
    for (const std::string &call : calls({"usleep "})) {
        lengths.push_back(static_cast<unsigned>(std::stoul(call.substr(std::strlen("usleep ")))));
    }
    return lengths;
}

}  // namespace support

using namespace support;

extern "C" {

int usleep(useconds_t microseconds) {
    const Call call;
    call.note("usleep " + std::to_string(microseconds));
    int result = 0;
    return call.answered("usleep", result) ? result : REAL(usleep)(microseconds);
}

int system(const char *command) {
    const Call call;
    call.note(std::string("system ") + command);
    if (call && !recording->run_commands) {
        return 0;
    }
    return REAL(system)(command);
}

int posix_spawnp(pid_t *process, const char *program, const posix_spawn_file_actions_t *actions,
                 const posix_spawnattr_t *attributes, char *const arguments[], char *const environment[]) {
    const Call call;
    std::string line = "spawn";
    for (char *const *argument = arguments; *argument != nullptr; ++argument) {
        line += std::string(" ") + *argument;
    }
    call.note(line);
    if (call && !recording->run_commands) {
        return ENOENT;
    }
    return REAL(posix_spawnp)(process, program, actions, attributes, arguments, environment);
}

void vsyslog(int priority, const char *format, va_list arguments) {
    char text[8192];
    vsnprintf(text, sizeof(text), format, arguments);
    const Call call;
    call.note("syslog " + std::to_string(priority) + " " + text);
}

void syslog(int priority, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vsyslog(priority, format, arguments);
    va_end(arguments);
}

void openlog(const char *identity, int options, int facility) {
    const Call call;
    call.note(std::string("openlog ") + identity + " " + std::to_string(options) + " " + std::to_string(facility));
}

void closelog() {
    const Call call;
    call.note("closelog");
}

void perror(const char *text) {
    const Call call;
    call.note(std::string("perror ") + text);
    REAL(perror)(text);
}

int rand() noexcept {
    const Call call;
    call.note("draw");
    int result = 0;
    return call.answered("draw", result) ? result : REAL(rand)();
}

ssize_t getrandom(void *drawn, size_t size, unsigned flags) {
    const Call call;
    call.note("draw");
    int result = 0;
    if (!call.answered("draw", result)) {
        return REAL(getrandom)(drawn, size, flags);
    }
    const unsigned bits = 2 * static_cast<unsigned>(result);  // rand() draws one bit less
    std::memcpy(drawn, &bits, sizeof(bits));
    return sizeof(bits);
}

int open(const char *path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    const Call call;
    const bool ours = call && std::strcmp(path, lock_file) == 0;
    if (ours) {
        call.note("open lock file");
    }
    int error = 0;
    if (ours && call.answered("open", error)) {
        return refused(error);
    }
    const int fd = REAL(open)(path, flags, mode);
    if (ours) {
        recording->lock_file = fd;
    }
    return fd;
}

int close(int fd) {
    const Call call;
    if (call && is_lock_file(fd)) {
        call.note("close lock file");
        recording->lock_file = -1;
    } else if (call && fd == 0) {
        call.note("close 0");
    }
    return REAL(close)(fd);
}

int unlink(const char *path) noexcept {
    const Call call;
    if (std::strstr(path, "myrouter.db-") != nullptr) {
        call.note(std::string("unlink ") + path);
    }
    return REAL(unlink)(path);
}

int syncfs(int fd) noexcept {
    const Call call;
    char path[PATH_MAX] = "";
    if (call && readlink(("/proc/self/fd/" + std::to_string(fd)).c_str(), path, sizeof(path) - 1) >= 0) {
        call.note(std::string("syncfs ") + path);
    }
    int error = 0;
    return call.answered("syncfs", error) ? refused(error) : REAL(syncfs)(fd);
}

void sync() noexcept {
    const Call call;
    call.note("sync");
    REAL(sync)();
}

int fcntl(int fd, int command, ...) {
    va_list arguments;
    va_start(arguments, command);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    const Call call;
    if (call && is_lock_file(fd) && command != F_DUPFD_CLOEXEC) {
        const struct flock *lock = static_cast<const struct flock *>(argument);
        const bool whole = lock->l_whence == SEEK_SET && lock->l_start == 0 && lock->l_len == 0;
        const bool takes = (command == F_SETLKW || command == F_OFD_SETLK) && lock->l_type == F_WRLCK;
        const bool gives = (command == F_SETLK || command == F_OFD_SETLK) && lock->l_type == F_UNLCK;
        call.note(!whole ? "lock of a part" : takes ? "lock" : gives ? "unlock" : "other lock");
    }
    int error = 0;
    if (call.answered("fcntl", error)) {
        return refused(error);
    }
    return REAL(fcntl)(fd, command, argument);
}

int socket(int domain, int type, int protocol) noexcept {
    const Call call;
    call.note("socket " + std::to_string(domain) + " " + std::to_string(type) + " " + std::to_string(protocol));
    int error = 0;
    return call.answered("socket", error) ? refused(error) : REAL(socket)(domain, type, protocol);
}

int setsockopt(int fd, int level, int option, const void *value, socklen_t size) noexcept {
    const Call call;
    std::string line = "setsockopt " + std::to_string(level) + " " + std::to_string(option);
    if (size == sizeof(int)) {
        line += " " + std::to_string(*static_cast<const int *>(value));
    } else if (size == sizeof(timeval)) {
        const timeval *time = static_cast<const timeval *>(value);
        line += " " + std::to_string(time->tv_sec) + "s " + std::to_string(time->tv_usec) + "us";
    }
    call.note(line);
    int error = 0;
    return call.answered("setsockopt", error) ? refused(error) : REAL(setsockopt)(fd, level, option, value, size);
}

int connect(int fd, const struct sockaddr *address, socklen_t length) {
    const Call call;
    call.note("connect " + std::to_string(length));
    int error = 0;
    return call.answered("connect", error) ? refused(error) : REAL(connect)(fd, address, length);
}

ssize_t send(int fd, const void *data, size_t size, int flags) {
    const Call call;
    call.note("send " + std::to_string(size) + " " + std::to_string(flags));
    int error = 0;
    return call.answered("send", error) ? refused(error) : REAL(send)(fd, data, size, flags);
}

ssize_t recv(int fd, void *data, size_t size, int flags) {
    const Call call;
    call.note("recv " + std::to_string(size) + " " + std::to_string(flags));
    int error = 0;
    return call.answered("recv", error) ? refused(error) : REAL(recv)(fd, data, size, flags);
}

int kill(pid_t process, int signal) noexcept {
    const Call call;
    call.note("kill " + std::to_string(process) + " " + std::to_string(signal));
    return REAL(kill)(process, signal);
}

iconv_t iconv_open(const char *to, const char *from) {
    const Call call;
    call.note(std::string("iconv_open ") + to + " " + from);
    int result = 0;
    if (call.answered("iconv_open", result)) {
        return reinterpret_cast<iconv_t>(static_cast<intptr_t>(result));  // 0 or -1
    }
    return REAL(iconv_open)(to, from);
}

int iconv_close(iconv_t converter) {
    const Call call;
    call.note("iconv_close");
    return REAL(iconv_close)(converter);
}

int sqlite3_open(const char *path, sqlite3 **db) {
    const Call call;
    call.note(std::string("sqlite3_open ") + path);
    int result = 0;
    if (call.answered("sqlite3_open", result)) {
        *db = nullptr;
        return result;
    }
    return REAL(sqlite3_open)(path, db);
}

int sqlite3_open_v2(const char *path, sqlite3 **db, int flags, const char *vfs) {
    const Call call;
    if (call && !recording->keep_connections && (flags & SQLITE_OPEN_NOMUTEX) != 0) {
        *db = nullptr;
        return SQLITE_CANTOPEN;
    }
    call.note(std::string("sqlite3_open_v2 ") + path + " " + std::to_string(flags));
    int result = 0;
    if (call.answered("sqlite3_open_v2", result)) {
        *db = nullptr;
        return result;
    }
    return REAL(sqlite3_open_v2)(path, db, flags, vfs);
}

int sqlite3_close(sqlite3 *db) {
    const Call call;
    call.note("sqlite3_close");
    const int closed = REAL(sqlite3_close)(db);  // in any case: no test wants the connection left open
    int result = 0;
    return call.answered("sqlite3_close", result) ? result : closed;
}

int sqlite3_exec(sqlite3 *db, const char *sql, int (*callback)(void *, int, char **, char **), void *argument,
                 char **message) {
    const Call call;
    call.note(std::string("sqlite3_exec ") + sql);
    int result = 0;
    if (call.answered("sqlite3_exec", result)) {
        if (message != nullptr) {
            *message = sqlite3_mprintf("planned %d", result);
        }
        return result;
    }
    return REAL(sqlite3_exec)(db, sql, callback, argument, message);
}

int sqlite3_prepare_v2(sqlite3 *db, const char *sql, int length, sqlite3_stmt **statement, const char **tail) {
    const Call call;
    call.note(std::string("sqlite3_prepare_v2 ") + sql);
    int result = 0;
    if (call.answered("sqlite3_prepare_v2", result)) {
        *statement = nullptr;
        return result;
    }
    return REAL(sqlite3_prepare_v2)(db, sql, length, statement, tail);
}

int sqlite3_step(sqlite3_stmt *statement) {
    const Call call;
    call.note("sqlite3_step");
    int result = 0;
    return call.answered("sqlite3_step", result) ? result : REAL(sqlite3_step)(statement);
}

int sqlite3_finalize(sqlite3_stmt *statement) {
    const Call call;
    call.note("sqlite3_finalize");
    return REAL(sqlite3_finalize)(statement);
}

void sqlite3_free(void *block) {
    const Call call;
    call.note("sqlite3_free");
    REAL(sqlite3_free)(block);
}

}  // extern "C"
