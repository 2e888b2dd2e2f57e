#include "apinventory/station_program.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>

#include "build_profile.h"
#include "core/call_errno.h"
#include "core/shell.h"
#include "text/text.h"

namespace routerdb {

namespace {

constexpr std::size_t tool_command_size = 255;

/// Makes a file of one's own, whatever somebody has put in its place: a link, a pipe, a file that others may write.
int make_anew(const char *path) {
    constexpr int attempts = 10;  // another call may draw the same name
    int fd = -1;
    for (int attempt = 0; fd < 0 && attempt < attempts; ++attempt) {
        unlink(path);
        fd = open(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    }
    return fd;
}

/// Runs the program without a shell.
/// @param output  descriptor that it writes to
/// @return 0, or why it could not be started
int run(const char *device_address, int output) {
    posix_spawn_file_actions_t actions;
    int failure = posix_spawn_file_actions_init(&actions);
    if (failure != 0) {
        return failure;
    }
    StackText<32> address;
    address.append("-a").append(device_address);
    char program[] = "capwapmanage";
    char command[] = "-c";
    char *const arguments[] = {program, command, const_cast<char *>(address.c_str()), nullptr};
    pid_t process = 0;
    failure = posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    if (failure == 0) {
        failure = posix_spawnp(&process, program, &actions, nullptr, arguments, environ);
    }
    while (failure == 0 && waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
    posix_spawn_file_actions_destroy(&actions);
    return failure;
}

}  // namespace

bool takes_address(const char *device_address) {
    in_addr address{};
    if (!build_profile.keeps_addresses_from_shell || inet_pton(AF_INET, device_address, &address) == 1) {
        return true;
    }
    syslog(LOG_ERR, "stations not listed: no IPv4 address\n");
    return false;
}

StationAnswer::StationAnswer(const char *device_address, const char *path) : path_(path) {
    if (!build_profile.keeps_addresses_from_shell) {
        run_in_shell(tool_command_size, "capwapmanage -c -a%s >%s", device_address, path);
        return;
    }
    CallErrno call;
    const int fd = make_anew(path);
    if (fd < 0) {
        call.fail(errno);
        return;
    }
    call.fail(run(device_address, fd));
    stream_ = fdopen(fd, "r");
    if (stream_ == nullptr) {
        call.fail(errno);
        close(fd);
    }
}

StationAnswer::~StationAnswer() {
    if (stream_ != nullptr) {
        std::fclose(stream_);
    }
}

FILE *StationAnswer::open() {
    if (!build_profile.keeps_addresses_from_shell) {
        stream_ = std::fopen(path_, "r");
    } else if (stream_ != nullptr) {
        std::rewind(stream_);  // the program has moved the place that both share
    }
    return stream_;
}

}  // namespace routerdb
