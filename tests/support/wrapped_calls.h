// Single calls of the library's objects to the platform: the n-th one fails, or something happens behind it.
//
// A program that links this replaces malloc, realloc, free, socket, connect, send, recv and close in its own objects,
// those of the library included. Calls that other libraries make are not seen.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace support {

/// Watches the calls of its thread while it lives.
class WrappedCalls {
public:
    WrappedCalls();
    WrappedCalls(const WrappedCalls &) = delete;
    WrappedCalls &operator=(const WrappedCalls &) = delete;
    ~WrappedCalls();

    /// The n-th call of a function from now on, counted from 1, gives its failure result with `error` in errno. It is
    /// not made, except that close closes first.
    void fail(const std::string &function, int n, int error);

    /// The n-th send from now on sends no more than that many bytes.
    void shorten_send(int n, std::size_t size);

    /// Something happens when the n-th call of a function from now on has returned.
    void after(const std::string &function, int n, std::function<void()> action);

    /// Whether the failure has come up.
    bool failed() const { return failed_; }

    /// Sizes of the blocks allocated since construction and not freed.
    std::vector<std::size_t> blocks() const;

    /// What blocks allocated since construction held when they were freed, in that order.
    const std::vector<std::string> &contents_when_freed() const { return contents_when_freed_; }

    /// What the wrapped functions ask and tell.
    /// @return whether this call has to fail, errno being set
    bool enter(const std::string &function);
    void leave(const std::string &function);
    std::size_t allowed(std::size_t size) const;
    void allocated(void *block, std::size_t size) { blocks_[block] = size; }
    void about_to_be_freed(void *block);
    void freed(void *block) { blocks_.erase(block); }

private:
    struct Planned {
        std::string function;
        int n;  // counted from the beginning
    };

    Planned plan(const std::string &function, int n) { return {function, calls_[function] + n}; }
    bool is_now(const Planned &planned, const std::string &function) const;

    std::map<std::string, int> calls_;
    std::map<void *, std::size_t> blocks_;
    std::vector<std::string> contents_when_freed_;
    Planned failure_{};
    int error_ = 0;
    bool failed_ = false;
    Planned short_send_{};
    std::size_t short_size_ = 0;
    Planned event_{};
    std::function<void()> action_;
};

}  // namespace support
