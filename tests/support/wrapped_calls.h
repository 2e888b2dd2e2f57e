// Single calls of the library's objects to the platform: the n-th one fails, or something happens behind it.
//
// A program that links this replaces malloc, realloc, free, socket, connect, send, recv and close in its own objects,
// those of the library included. Calls that other libraries make are not seen. With wrapped_platform.cpp nearly all
// other calls that can fail are replaced too: of files, programs, converters and SQLite.
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

    /// How a call fails: with this in errno, or as the result of a function of SQLite; and whether all behind it do.
    struct Fault {
        int error;
        int sqlite_code;
        bool for_good;
    };

    /// The n-th call from now on fails, whichever function it is of.
    void fail_any(int n, const Fault &fault);

    /// The n-th send from now on sends no more than that many bytes.
    void shorten_send(int n, std::size_t size);

    /// Something happens when the n-th call of a function from now on has returned.
    void after(const std::string &function, int n, std::function<void()> action);

    /// Whether the failure has come up.
    bool failed() const { return failed_; }

    /// The function whose call has failed first.
    const std::string &failed_function() const { return failed_function_; }

    /// Sizes of the blocks allocated since construction and not freed.
    std::vector<std::size_t> blocks() const;

    /// What blocks allocated since construction held when they were freed, in that order.
    const std::vector<std::string> &contents_when_freed() const { return contents_when_freed_; }

    /// What the wrapped functions ask and tell.
    /// @return whether this call has to fail, errno being set
    bool enter(const std::string &function);
    void leave(const std::string &function);
    int sqlite_code() const { return fault_.sqlite_code; }
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
    bool is_any_now() const { return any_ != 0 && (all_calls_ == any_ || (fault_.for_good && all_calls_ > any_)); }

    std::map<std::string, int> calls_;
    std::map<void *, std::size_t> blocks_;
    std::vector<std::string> contents_when_freed_;
    Planned failure_{};
    int error_ = 0;
    int all_calls_ = 0;
    int any_ = 0;  // the number of the call that fails, whichever it is
    Fault fault_{};
    bool failed_ = false;
    std::string failed_function_;
    Planned short_send_{};
    std::size_t short_size_ = 0;
    Planned event_{};
    std::function<void()> action_;
};

}  // namespace support
