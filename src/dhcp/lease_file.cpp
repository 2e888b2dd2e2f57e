#include "dhcp/lease_file.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace routerdb {

namespace {

void ask_server_to_write(const char *pid_file) {
    constexpr useconds_t time_to_write = 1000;
    const int pid = read_pid(pid_file);
    if (pid > 0) {
        kill(pid, SIGUSR1);
    }
    usleep(time_to_write);
}

FILE *open_for_reading(const char *path) {
    FILE *stream = std::fopen(path, "r");
    if (stream == nullptr) {
        std::perror("could not open input file");
    }
    return stream;
}

}  // namespace

int read_pid(const char *path) {
    FILE *stream = std::fopen(path, "r");
    if (stream == nullptr) {
        return -1;
    }
    char line[100] = "";
    const char *read = std::fgets(line, sizeof(line), stream);
    std::fclose(stream);
    return read != nullptr ? std::atoi(line) : 0;  // NOLINT(cert-err34-c): no number is no process
}

void hold_open(const char *path) {
    // Deliberate: one more stream stays open with each call.
    [[maybe_unused]] FILE *const stream = std::fopen(path, "r");
}

LeaseFile::LeaseFile(const char *path, const char *pid_file) : stream_(nullptr) {
    ask_server_to_write(pid_file);
    stream_ = open_for_reading(path);
}

LeaseFile::~LeaseFile() {
    if (stream_ != nullptr) {
        std::fclose(stream_);
    }
}

}  // namespace routerdb
