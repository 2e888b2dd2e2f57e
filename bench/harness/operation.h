// The table of operations and their variants.
#pragma once

#include <array>
#include <string>

#include "harness/library.h"
#include "harness/variant.h"

namespace bench {

/// What a timing counts: work of the SQL service, which has a process for each request, only shows in the elapsed time.
enum class Clock : unsigned char { processor, elapsed };

struct Operation {
    const char *name;

    /// Before each run, outside what is measured: brings back what a run changes. May be null.
    void (*prepare)(Variant);

    /// What the last run left behind. Variants are equal when these texts are.
    std::string (*outcome)();

    /// Rounds of a timing. Operations that sleep get by with few.
    int rounds;
    Clock clock;

    /// The library in either profile, then the other variants from `bare` on; null where there is none.
    void (*library)(const Library &);
    std::array<void (*)(), 6> others;

    /// One that is timed in few rounds: counting it once tells enough, and nothing has to warm up.
    constexpr bool is_long() const { return rounds < 10; }
};

struct OperationTable {
    const Operation *begin_;
    const Operation *end_;
    const Operation *begin() const { return begin_; }
    const Operation *end() const { return end_; }
};

OperationTable operations();

/// Both profiles of the library.
struct Profiles {
    Library exact;
    Library modern;
};

bool has(const Operation &operation, Variant variant);

inline void prepare(const Operation &operation, Variant variant) {
    if (operation.prepare != nullptr) {
        operation.prepare(variant);
    }
}

/// Runs an operation once; what it printed has left the stream.
void run(const Profiles &profiles, const Operation &operation, Variant variant);

}  // namespace bench
