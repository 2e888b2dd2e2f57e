#include "support/process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>

namespace support {

namespace {

[[noreturn]] void run(const std::function<bool()> &action) {
    int status = 1;
    try {
        status = action() ? 0 : 1;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    _exit(status);  // the test's own objects are not this process's to destroy
}

}  // namespace

Process::Process(const std::function<bool()> &action) : id_(fork()) {
    if (id_ == 0) {
        run(action);
    }
}

Process::~Process() {
    if (id_ > 0) {
        kill(id_, SIGKILL);
        wait();
    }
}

bool Process::has_ended() const {
    siginfo_t ended{};
    waitid(P_PID, static_cast<id_t>(id_), &ended, WEXITED | WNOHANG | WNOWAIT);
    return ended.si_pid == id_;
}

int Process::wait() {
    int status = 0;
    waitpid(id_, &status, 0);
    id_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

bool become(const std::vector<std::string> &arguments) {
    std::vector<std::string> command{EMULATOR_WORDS};  // none where the processor runs the program itself
    command.insert(command.end(), arguments.begin(), arguments.end());
    std::vector<char *> words;
    words.reserve(command.size() + 1);
    for (std::string &word : command) {
        words.push_back(word.data());
    }
    words.push_back(nullptr);
    execvp(words[0], words.data());
    return false;
}

bool eventually(const std::function<bool()> &condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        usleep(1000);
    }
    return true;
}

}  // namespace support
