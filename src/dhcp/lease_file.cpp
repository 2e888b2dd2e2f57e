#include "dhcp/lease_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "build_profile.h"
#include "text/number.h"
#include "text/text.h"

namespace routerdb {

namespace {

/// The number on the first line of a stream, which is closed.
int take_pid(FILE *stream) {
    char line[100] = "";
    const char *read = std::fgets(line, sizeof(line), stream);
    std::fclose(stream);
    return read != nullptr ? to_number(line) : 0;
}

/// Whether a process runs as a user.
bool runs_as(int pid, uid_t user) {
    StackText<32> directory;
    directory.append("/proc/").append(long{pid});
    struct stat process {};
    return stat(directory.c_str(), &process) == 0 && process.st_uid == user;
}

/// The number in a pid file that nobody but root, or the caller for a process of his own, can have written.
/// @return the number; below 1 for a file that does not count
int trusted_pid(const char *path) {
    const int fd = open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);  // a pipe in its place would keep the caller waiting
    struct stat file {};
    const bool counts = fd >= 0 && fstat(fd, &file) == 0 && S_ISREG(file.st_mode) &&
                        (file.st_mode & (S_IWGRP | S_IWOTH)) == 0 && (file.st_uid == 0 || file.st_uid == geteuid());
    FILE *const stream = counts ? fdopen(fd, "r") : nullptr;
    if (stream == nullptr) {
        if (fd >= 0) {
            close(fd);
        }
        return -1;
    }
    const int pid = take_pid(stream);
    return file.st_uid == 0 || runs_as(pid, file.st_uid) ? pid : -1;
}

void ask_server_to_write(const char *pid_file) {
    constexpr useconds_t time_to_write = 1000;
    const int pid = build_profile.checks_pid_file ? trusted_pid(pid_file) : read_pid(pid_file);
    if (pid > 0) {
        kill(pid, SIGUSR1);
    }
    usleep(time_to_write);
}

}  // namespace

int read_pid(const char *path) {
    FILE *stream = std::fopen(path, "r");
    return stream != nullptr ? take_pid(stream) : -1;
}

void hold_open(const char *path) {
    if (!build_profile.closes_its_own) {
        // Deliberate: one more stream stays open with each call.
        [[maybe_unused]] FILE *const stream = std::fopen(path, "r");
    }
}

LeaseFile::LeaseFile(const char *path, const char *pid_file) : stream_(nullptr) {
    ask_server_to_write(pid_file);
    stream_ = std::fopen(path, "r");
    if (stream_ == nullptr) {
        call_.fail(errno);
        std::perror("could not open input file");
    }
}

LeaseFile::~LeaseFile() {
    if (stream_ != nullptr) {
        std::fclose(stream_);
    }
}

}  // namespace routerdb
