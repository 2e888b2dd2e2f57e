// The calls that can fail beside those of wrapped_calls.cpp: files, programs, converters, SQLite.
#include <fcntl.h>
#include <iconv.h>
#include <spawn.h>
#include <sqlite3.h>
#include <sys/random.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>

#include "support/wrapped_pass.h"

using namespace support;

// The names are the linker's. NOLINTBEGIN(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)

/// A function that is not made when it is to fail.
#define WRAP(Result, function, failure, parameters, arguments)                                \
    Result __real_##function parameters;                                                      \
    Result __wrap_##function parameters;                                                      \
    Result __wrap_##function parameters {                                                     \
        return pass<Result>(#function, failure, [&] { return __real_##function arguments; }); \
    }

namespace {

/// The planned result of a function of SQLite.
int sqlite_failure() {
    return watching != nullptr ? watching->sqlite_code() : SQLITE_OK;
}

/// The converter that a failure gives.
iconv_t no_converter() {
    return reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr): as the platform has it
}

}  // namespace

extern "C" {

WRAP(int, access, -1, (const char *path, int mode), (path, mode))
WRAP(int, unlink, -1, (const char *path), (path))
WRAP(int, syncfs, -1, (int fd), (fd))
WRAP(FILE *, fopen, nullptr, (const char *path, const char *mode), (path, mode))
WRAP(FILE *, fdopen, nullptr, (int fd, const char *mode), (fd, mode))
WRAP(char *, fgets, nullptr, (char *line, int size, FILE *stream), (line, size, stream))
WRAP(size_t, fread, 0, (void *place, size_t size, size_t count, FILE *stream), (place, size, count, stream))

WRAP(int, system, -1, (const char *command), (command))
WRAP(int, kill, -1, (pid_t process, int signal), (process, signal))
WRAP(int, posix_spawnp, EAGAIN,
     (pid_t * process, const char *program, const posix_spawn_file_actions_t *actions,
      const posix_spawnattr_t *attributes, char *const *arguments, char *const *environment),
     (process, program, actions, attributes, arguments, environment))
WRAP(ssize_t, getrandom, -1, (void *place, size_t size, unsigned flags), (place, size, flags))

WRAP(int, getsockopt, -1, (int fd, int level, int option, void *value, socklen_t *size),
     (fd, level, option, value, size))
WRAP(int, setsockopt, -1, (int fd, int level, int option, const void *value, socklen_t size),
     (fd, level, option, value, size))

WRAP(iconv_t, iconv_open, no_converter(), (const char *to, const char *from), (to, from))
WRAP(size_t, iconv, static_cast<size_t>(-1),
     (iconv_t converter, char **in, size_t *in_left, char **out, size_t *out_left),
     (converter, in, in_left, out, out_left))

WRAP(int, sqlite3_step, sqlite_failure(), (sqlite3_stmt * statement), (statement))

int __real_open(const char *path, int flags, ...);
int __wrap_open(const char *path, int flags, ...);
int __real_fcntl(int fd, int command, ...);
int __wrap_fcntl(int fd, int command, ...);
pid_t __real_waitpid(pid_t process, int *status, int options);
pid_t __wrap_waitpid(pid_t process, int *status, int options);
int __wrap_usleep(useconds_t microseconds);
int __real_sqlite3_open(const char *path, sqlite3 **db);
int __wrap_sqlite3_open(const char *path, sqlite3 **db);
int __real_sqlite3_open_v2(const char *path, sqlite3 **db, int flags, const char *vfs);
int __wrap_sqlite3_open_v2(const char *path, sqlite3 **db, int flags, const char *vfs);
using ForEachRow = int (*)(void *, int, char **, char **);
int __real_sqlite3_exec(sqlite3 *db, const char *sql, ForEachRow row, void *argument, char **message);
int __wrap_sqlite3_exec(sqlite3 *db, const char *sql, ForEachRow row, void *argument, char **message);
int __real_sqlite3_prepare_v2(sqlite3 *db, const char *sql, int size, sqlite3_stmt **statement, const char **tail);
int __wrap_sqlite3_prepare_v2(sqlite3 *db, const char *sql, int size, sqlite3_stmt **statement, const char **tail);

int __wrap_open(const char *path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return pass("open", -1, [&] { return __real_open(path, flags, mode); });
}

int __wrap_fcntl(int fd, int command, ...) {
    va_list arguments;
    va_start(arguments, command);
    void *const argument = va_arg(arguments, void *);
    va_end(arguments);
    return pass("fcntl", -1, [&] { return __real_fcntl(fd, command, argument); });
}

pid_t __wrap_waitpid(pid_t process, int *status, int options) {
    const pid_t result = __real_waitpid(process, status, options);  // in any case: no test wants the process left
    return pass("waitpid", pid_t{-1}, [&] { return result; });
}

/// No test wants to wait for what is made to fail.
int __wrap_usleep(useconds_t /*microseconds*/) {
    return 0;
}

// What SQLite fills is empty behind a failure.

int __wrap_sqlite3_open(const char *path, sqlite3 **db) {
    *db = nullptr;
    return pass("sqlite3_open", sqlite_failure(), [&] { return __real_sqlite3_open(path, db); });
}

int __wrap_sqlite3_open_v2(const char *path, sqlite3 **db, int flags, const char *vfs) {
    *db = nullptr;
    return pass("sqlite3_open_v2", sqlite_failure(), [&] { return __real_sqlite3_open_v2(path, db, flags, vfs); });
}

int __wrap_sqlite3_exec(sqlite3 *db, const char *sql, ForEachRow row, void *argument, char **message) {
    if (message != nullptr) {
        *message = nullptr;
    }
    return pass("sqlite3_exec", sqlite_failure(), [&] { return __real_sqlite3_exec(db, sql, row, argument, message); });
}

int __wrap_sqlite3_prepare_v2(sqlite3 *db, const char *sql, int size, sqlite3_stmt **statement, const char **tail) {
    *statement = nullptr;
    return pass("sqlite3_prepare_v2", sqlite_failure(),
                [&] { return __real_sqlite3_prepare_v2(db, sql, size, statement, tail); });
}

}  // extern "C"

// NOLINTEND(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
