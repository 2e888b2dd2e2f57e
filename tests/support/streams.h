// What a piece of code writes to standard output and standard error.
#pragma once

#include <string>

namespace support {

/// Both streams, from construction on, in files of their own. The streams of the test come back with take().
class Streams {
public:
    Streams();
    Streams(const Streams &) = delete;
    Streams &operator=(const Streams &) = delete;
    ~Streams();

    struct Text {
        std::string output;
        std::string error;
    };

    /// Ends the capture.
    Text take();

private:
    struct Redirected {
        int descriptor;  // the one that is redirected
        int saved;
        int file;
    };

    static Redirected redirect(int descriptor);
    static std::string restore(Redirected &stream);

    Redirected output_;
    Redirected error_;
};

/// What `action` writes.
template <typename Action>
Streams::Text streams_of(Action action) {
    Streams streams;
    action();
    return streams.take();
}

}  // namespace support
