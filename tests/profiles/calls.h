// One library of several, and calls of all its functions that a profile may make in a way of its own.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace profiles {

/// A library that is loaded by its path.
class Library {
public:
    explicit Library(const char *path);

    /// An exported function; throws std::runtime_error without it.
    template <typename Function>
    Function *get(const char *name) const {
        return reinterpret_cast<Function *>(find(name));
    }

private:
    void *find(const char *name) const;

    void *handle_;
};

/// A call, and all that its caller sees of it: result, records, output, messages, locks, writes and commands.
struct Outcome {
    std::string call;
    std::string seen;
};

/// Makes the calls with arguments that follow from `random`.
std::vector<Outcome> make_calls(const Library &library, std::mt19937 &random);

}  // namespace profiles
