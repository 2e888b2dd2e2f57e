// A process that works until it is killed, at a moment that nobody has chosen.
#pragma once

#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include "soak/soak.h"
#include "support/process.h"

namespace soak {

/// Whom the signal reaches: the caller, so that the commands that it has started go on, or them too.
enum class Kill : std::uint8_t { caller_alone, whole_group };

class Victim {
public:
    /// Works in a process group of its own.
    explicit Victim(const Work &work) : process_([&] { return run(work); }) {
        if (!support::eventually([&] { return state_->started.load(); })) {
            throw std::runtime_error("the victim does not start");
        }
    }

    /// @return how many works had been acknowledged
    long killed(Kill kind) {
        kill(kind == Kill::caller_alone ? process_.id() : -process_.id(), SIGKILL);
        if (process_.wait() != 128 + SIGKILL) {
            throw std::runtime_error("the victim has ended by itself");
        }
        return state_->acknowledged;
    }

private:
    struct State {
        std::atomic<bool> started;
        std::atomic<long> acknowledged;
    };

    bool run(const Work &work) const {
        setpgid(0, 0);
        state_->started = true;
        while (work(state_->acknowledged + 1)) {
            ++state_->acknowledged;
        }
        return false;
    }

    const Shared<State> state_;
    support::Process process_;
};

/// The processes of this private root.
inline long processes() {
    long count = 0;
    for (const auto &entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        count += name.find_first_not_of("0123456789") == std::string::npos ? 1 : 0;
    }
    return count;
}

inline unsigned microseconds_of(const std::function<void()> &action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    const auto taken = std::chrono::steady_clock::now() - begin;
    return static_cast<unsigned>(std::chrono::duration_cast<std::chrono::microseconds>(taken).count());
}

}  // namespace soak
