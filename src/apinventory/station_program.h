// The program that asks an access point for its stations, and the file that it writes.
#pragma once

#include <cstdio>

namespace routerdb {

/// Whether the program may be started with an address. Where the build profile keeps addresses from the shell, that is
/// an IPv4 one: anything else is refused, which the system log tells.
bool takes_address(const char *device_address);

/// What the program has written.
class StationAnswer {
public:
    /// Runs the program and waits for its end. Where no shell runs it, errno tells why it could not be run.
    /// @param path  of the file, which is made anew and stays
    StationAnswer(const char *device_address, const char *path);
    StationAnswer(const StationAnswer &) = delete;
    StationAnswer &operator=(const StationAnswer &) = delete;
    ~StationAnswer();

    /// From its first line on, when it has had time to be written; null when there is no such file.
    FILE *open();

private:
    const char *path_;
    FILE *stream_ = nullptr;
};

}  // namespace routerdb
