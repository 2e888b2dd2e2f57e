#include "support/wrapped_calls.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "support/wrapped_pass.h"

namespace support {

thread_local WrappedCalls *watching = nullptr;

namespace {

void *note(void *block, std::size_t size) {
    if (watching != nullptr && block != nullptr) {
        watching->allocated(block, size);
    }
    return block;
}

void forget(void *block) {
    if (watching != nullptr) {
        watching->freed(block);
    }
}

}  // namespace

WrappedCalls::WrappedCalls() {
    watching = this;
}

WrappedCalls::~WrappedCalls() {
    watching = nullptr;
}

void WrappedCalls::fail(const std::string &function, int n, int error) {
    failure_ = plan(function, n);
    error_ = error;
}

void WrappedCalls::fail_any(int n, const Fault &fault) {
    any_ = all_calls_ + n;
    fault_ = fault;
    error_ = fault.error;
}

void WrappedCalls::shorten_send(int n, std::size_t size) {
    short_send_ = plan("send", n);
    short_size_ = size;
}

void WrappedCalls::after(const std::string &function, int n, std::function<void()> action) {
    event_ = plan(function, n);
    action_ = std::move(action);
}

std::vector<std::size_t> WrappedCalls::blocks() const {
    std::vector<std::size_t> sizes;
    for (const auto &block : blocks_) {
        sizes.push_back(block.second);
    }
    return sizes;
}

void WrappedCalls::about_to_be_freed(void *block) {
    const auto found = blocks_.find(block);
    if (found != blocks_.end()) {
        contents_when_freed_.emplace_back(static_cast<const char *>(block), found->second);
    }
}

bool WrappedCalls::is_now(const Planned &planned, const std::string &function) const {
    return function == planned.function && calls_.at(function) == planned.n;
}

bool WrappedCalls::enter(const std::string &function) {
    ++calls_[function];
    ++all_calls_;
    const bool fails = is_now(failure_, function) || is_any_now();
    if (fails) {
        failed_function_ = failed_ ? failed_function_ : function;
        failed_ = true;
        errno = error_;
    }
    return fails;
}

void WrappedCalls::leave(const std::string &function) {
    if (is_now(event_, function)) {
        action_();
    }
}

std::size_t WrappedCalls::allowed(std::size_t size) const {
    return is_now(short_send_, "send") ? std::min(size, short_size_) : size;
}

}  // namespace support

using namespace support;

// The names are the linker's. NOLINTBEGIN(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)

extern "C" {

void *__real_malloc(size_t size);
void *__real_realloc(void *block, size_t size);
void __real_free(void *block);
int __real_socket(int domain, int type, int protocol);
int __real_connect(int fd, const sockaddr *address, socklen_t length);
ssize_t __real_send(int fd, const void *data, size_t size, int flags);
ssize_t __real_recv(int fd, void *data, size_t size, int flags);
int __real_close(int fd);

void *__wrap_malloc(size_t size);
void *__wrap_realloc(void *block, size_t size);
void __wrap_free(void *block);
int __wrap_socket(int domain, int type, int protocol);
int __wrap_connect(int fd, const sockaddr *address, socklen_t length);
ssize_t __wrap_send(int fd, const void *data, size_t size, int flags);
ssize_t __wrap_recv(int fd, void *data, size_t size, int flags);
int __wrap_close(int fd);

void *__wrap_malloc(size_t size) {
    return note(pass<void *>("malloc", nullptr, [&] { return __real_malloc(size); }), size);
}

void *__wrap_realloc(void *block, size_t size) {
    void *const moved = pass<void *>("realloc", nullptr, [&] { return __real_realloc(block, size); });
    if (moved != nullptr) {
        forget(block);
    }
    return note(moved, size);
}

void __wrap_free(void *block) {
    if (watching != nullptr) {
        watching->about_to_be_freed(block);
    }
    forget(block);
    __real_free(block);
}

int __wrap_socket(int domain, int type, int protocol) {
    return pass("socket", -1, [&] { return __real_socket(domain, type, protocol); });
}

int __wrap_connect(int fd, const sockaddr *address, socklen_t length) {
    return pass("connect", -1, [&] { return __real_connect(fd, address, length); });
}

ssize_t __wrap_send(int fd, const void *data, size_t size, int flags) {
    WrappedCalls *const watcher = watching;
    return pass<ssize_t>(
        "send", -1, [&] { return __real_send(fd, data, watcher != nullptr ? watcher->allowed(size) : size, flags); });
}

ssize_t __wrap_recv(int fd, void *data, size_t size, int flags) {
    return pass<ssize_t>("recv", -1, [&] { return __real_recv(fd, data, size, flags); });
}

int __wrap_close(int fd) {
    const int result = __real_close(fd);  // also when it is to fail: no test wants the descriptor left open
    return pass("close", -1, [&] { return result; });
}

}  // extern "C"

// NOLINTEND(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
