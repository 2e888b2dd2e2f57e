// Processes beside the test.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

namespace support {

/// A process that runs `action`, which returns whether all was well. It is killed if it still runs at the end.
class Process {
public:
    explicit Process(const std::function<bool()> &action);
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;
    ~Process();

    pid_t id() const { return id_; }

    bool has_ended() const;

    /// Waits for its end.
    /// @return its exit status; 128 and the signal's number if a signal has ended it
    int wait();

private:
    pid_t id_;
};

/// Replaces this process with a program of this build. Returns only when there is none: false.
bool become(const std::vector<std::string> &arguments);

/// Waits until something holds, up to half a minute.
/// @return whether it does
bool eventually(const std::function<bool()> &condition);

}  // namespace support
