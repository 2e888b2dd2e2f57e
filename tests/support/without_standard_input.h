// A program that was started without standard input: the next file or socket gets its descriptor.
#pragma once

#include <unistd.h>

namespace support {

/// Closes standard input, and puts it back at the end.
class WithoutStandardInput {
public:
    WithoutStandardInput() : kept_(dup(STDIN_FILENO)) { close(STDIN_FILENO); }
    WithoutStandardInput(const WithoutStandardInput &) = delete;
    WithoutStandardInput &operator=(const WithoutStandardInput &) = delete;
    ~WithoutStandardInput() {
        dup2(kept_, STDIN_FILENO);
        close(kept_);
    }

private:
    int kept_;
};

}  // namespace support
