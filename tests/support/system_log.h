// The system log of the private root, for programs that the test starts.
#pragma once

#include <string>
#include <vector>

namespace support {

/// Receives what any process logs while it lives.
class SystemLog {
public:
    SystemLog();
    SystemLog(const SystemLog &) = delete;
    SystemLog &operator=(const SystemLog &) = delete;
    ~SystemLog();

    /// What has been logged since the last call, as "28 request refused": facility and priority, then the text.
    std::vector<std::string> lines() const;

    /// Leaves no room for another line: whoever logs one waits until lines() is called.
    static void fill();

private:
    int fd_;
};

}  // namespace support
