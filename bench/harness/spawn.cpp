#include "harness/spawn.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

void must(bool succeeded, const std::vector<std::string> &command) {
    if (!succeeded) {
        std::fprintf(stderr, "bench: %s failed\n", command.front().c_str());
        std::exit(1);
    }
}

/// @param output  takes the place of standard output unless it is negative
pid_t start(const std::vector<std::string> &command, int output) {
    std::vector<char *> arguments;
    for (const std::string &argument : command) {
        arguments.push_back(const_cast<char *>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (output >= 0) {
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    }
    pid_t child = -1;
    must(posix_spawnp(&child, arguments.front(), &actions, nullptr, arguments.data(), environ) == 0, command);
    posix_spawn_file_actions_destroy(&actions);
    return child;
}

void wait_for(pid_t child, const std::vector<std::string> &command) {
    int status = -1;
    must(waitpid(child, &status, 0) == child && status == 0, command);
}

}  // namespace

void spawn(const std::vector<std::string> &command) {
    wait_for(start(command, -1), command);
}

std::string output_of(const std::vector<std::string> &command) {
    int ends[2];
    must(pipe2(ends, O_CLOEXEC) == 0, command);
    const pid_t child = start(command, ends[1]);
    close(ends[1]);
    std::string output;
    char piece[65536];
    for (ssize_t size = read(ends[0], piece, sizeof(piece)); size > 0; size = read(ends[0], piece, sizeof(piece))) {
        output.append(piece, static_cast<std::size_t>(size));
    }
    close(ends[0]);
    wait_for(child, command);
    return output;
}

std::string beside(const char *name) {
    char path[4096];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof(path));
    const std::string self(path, length > 0 ? static_cast<std::size_t>(length) : 0);
    return self.substr(0, self.rfind('/') + 1) + name;
}

}  // namespace bench
