// The real SQL service.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/process.h"

namespace support {

/// The program and its arguments.
std::vector<std::string> sqld(const std::vector<std::string> &arguments = {});

/// Runs routerdb-sqld until it ends by itself or is killed with the object.
class Service {
public:
    /// Waits until it has served a first connection, which says nothing.
    explicit Service(const std::vector<std::string> &arguments = {});

    /// The processes that serve connections.
    std::vector<pid_t> children() const;

    /// Waits until there are so many of them.
    bool has_children(std::size_t count) const;

    void signal(int number) const;

    /// Waits for its end.
    /// @return as Process::wait
    int wait() { return process_.wait(); }

private:
    Process process_;
};

}  // namespace support
