// The real SQL service.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/process.h"

namespace support {

/// The program and its arguments.
std::vector<std::string> sqld(const std::vector<std::string> &arguments = {});

/// A line of the system log about a request of this process.
std::string told(const std::string &outcome);

/// Runs routerdb-sqld until it ends by itself or is killed with the object.
class Service {
public:
    /// Waits until it has served a first connection, which says nothing.
    explicit Service(const std::vector<std::string> &arguments = {});

    /// The processes that serve requests.
    std::vector<pid_t> children() const;

    /// Waits until there are so many of them.
    bool has_children(std::size_t count) const;

    /// Waits until the service has all that has been sent to it, by two requests that are refused.
    static void collect_all();

    /// The process that listens.
    pid_t id() const { return process_.id(); }

    void signal(int number) const;

    /// Waits for its end.
    /// @return as Process::wait
    int wait() { return process_.wait(); }

private:
    Process process_;
};

}  // namespace support
