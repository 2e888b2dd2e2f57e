// What every program of this folder has: how often, with which seed, and what it found.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <new>
#include <random>
#include <string>

namespace soak {

/// A number that scripts/soak hands over in the environment, or what stands for it among the ordinary tests.
inline long setting(const char *name, long otherwise) {
    const char *const text = std::getenv(name);
    return text != nullptr ? std::strtol(text, nullptr, 10) : otherwise;
}

/// Whether this is no run of scripts/soak.
inline bool among_ordinary_tests() {
    return setting("SOAK_MINUTES", 0) == 0;
}

/// How often something is done: `in_half_an_hour` times in a run of 30 minutes, in proportion in one of another length,
/// and `at_least` times in any. Among the ordinary tests it is as often as that.
inline long count(long at_least, long in_half_an_hour) {
    const long times = in_half_an_hour * setting("SOAK_MINUTES", 0) / 30;
    return times > at_least ? times : at_least;
}

/// Random numbers of this run; each process of it has a number, and draws others.
inline std::mt19937 random_numbers(long process = 0) {
    std::seed_seq seed{setting("SOAK_SEED", 1), process};
    return std::mt19937(seed);
}

/// A number from 0 to `below` - 1.
inline unsigned draw(std::mt19937 &random, unsigned below) {
    return static_cast<unsigned>(random() % below);
}

/// Work number n, from 1; it returns whether all was well.
using Work = std::function<bool(long n)>;

/// A line of the table that scripts/soak prints, if all has held so far.
inline void figure(long times, const std::string &what) {
    if (!::testing::Test::HasFailure()) {
        std::printf("\nFIGURE %ld %s\n", times, what.c_str());  // after what others have printed without an end
        std::fflush(stdout);
    }
}

/// A value that processes share which are made after it.
template <typename Value>
class Shared {
public:
    Shared() : place_(mmap(nullptr, sizeof(Value), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
        if (place_ == MAP_FAILED) {
            throw std::bad_alloc();
        }
        value_ = new (place_) Value{};
    }
    Shared(const Shared &) = delete;
    Shared &operator=(const Shared &) = delete;
    ~Shared() { munmap(place_, sizeof(Value)); }

    Value &operator*() const { return *value_; }
    Value *operator->() const { return value_; }

private:
    void *place_;
    Value *value_ = nullptr;
};

}  // namespace soak
