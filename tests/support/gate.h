// Lets processes wait for each other.
#pragma once

#include <unistd.h>

#include <cstdlib>

namespace support {

/// Made before the processes that share it; open for good once opened.
class Gate {
public:
    Gate() {
        if (pipe(ends_) != 0) {
            std::abort();
        }
    }
    Gate(const Gate &) = delete;
    Gate &operator=(const Gate &) = delete;
    ~Gate() {
        close(ends_[0]);
        close(ends_[1]);
    }

    void open() const {
        if (write(ends_[1], "o", 1) != 1) {
            std::abort();
        }
    }

    void wait() const {
        char byte = 0;
        if (read(ends_[0], &byte, 1) != 1) {
            std::abort();
        }
        open();  // for whoever else waits
    }

private:
    int ends_[2] = {-1, -1};
};

}  // namespace support
