#include "support/streams.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

namespace support {

Streams::Streams() : output_(redirect(STDOUT_FILENO)), error_(redirect(STDERR_FILENO)) {}

Streams::~Streams() {
    take();
}

Streams::Text Streams::take() {
    Text text;
    text.output = restore(output_);
    text.error = restore(error_);
    return text;
}

Streams::Redirected Streams::redirect(int descriptor) {
    std::fflush(nullptr);
    // Far up, so that a test that counts descriptors or closes low ones does not meet them.
    constexpr int far_up = 500;
    const int memory = memfd_create("stream", MFD_CLOEXEC);
    Redirected stream{descriptor, fcntl(descriptor, F_DUPFD_CLOEXEC, far_up), fcntl(memory, F_DUPFD_CLOEXEC, far_up)};
    close(memory);
    dup2(stream.file, descriptor);
    return stream;
}

std::string Streams::restore(Redirected &stream) {
    if (stream.saved < 0) {
        return {};
    }
    std::fflush(nullptr);
    dup2(stream.saved, stream.descriptor);
    close(stream.saved);
    stream.saved = -1;

    std::string text(static_cast<std::size_t>(lseek(stream.file, 0, SEEK_END)), '\0');
    const ssize_t size = pread(stream.file, text.data(), text.size(), 0);
    text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    close(stream.file);
    return text;
}

WatchedStreams::WatchedStreams(std::function<void(const std::string &)> watcher)
    : watcher_(std::move(watcher)),
      watched_(fopencookie(this, "w", {nullptr, show, nullptr, nullptr})),
      output_(std::exchange(stdout, watched_)),
      error_(std::exchange(stderr, watched_)) {
    std::setvbuf(watched_, nullptr, _IONBF, 0);
}

WatchedStreams::~WatchedStreams() {
    stdout = output_;
    stderr = error_;
    std::fclose(watched_);
}

ssize_t WatchedStreams::show(void *self, const char *text, size_t size) {
    static_cast<WatchedStreams *>(self)->watcher_(std::string(text, size));
    return static_cast<ssize_t>(size);
}

}  // namespace support
