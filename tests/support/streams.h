// What a piece of code writes to standard output and standard error.
#pragma once

#include <sys/types.h>

#include <cstdio>
#include <functional>
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

/// Both streams, whose texts are shown to a watcher at the moment they are written.
class WatchedStreams {
public:
    explicit WatchedStreams(std::function<void(const std::string &text)> watcher);
    WatchedStreams(const WatchedStreams &) = delete;
    WatchedStreams &operator=(const WatchedStreams &) = delete;
    ~WatchedStreams();

private:
    static ssize_t show(void *self, const char *text, size_t size);

    std::function<void(const std::string &)> watcher_;
    FILE *watched_;
    FILE *output_;
    FILE *error_;
};

/// What `action` writes.
template <typename Action>
Streams::Text streams_of(Action action) {
    Streams streams;
    action();
    return streams.take();
}

}  // namespace support
