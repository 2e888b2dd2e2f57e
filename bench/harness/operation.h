// The table of operations and their variants.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "harness/library.h"

namespace bench {

enum class Variant : unsigned char { exact, modern, bare, sqlitecpp, soci, program };

inline constexpr std::array<std::string_view, 6> variant_names{"exact",     "modern", "bare",
                                                               "SQLiteCpp", "SOCI",   "program"};

struct Operation {
    const char *name;

    /// Before each run, outside what is measured: brings back what a run changes. May be null.
    void (*prepare)();

    /// What the last run left behind. Variants are equal when these texts are.
    std::string (*outcome)();

    /// Runs of a timing; those that sleep get by with fewer.
    int rounds;

    /// The library in either profile, then the other variants from `bare` on; null where there is none.
    void (*library)(const Library &);
    std::array<void (*)(), 4> others;
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

/// Runs an operation once; what it printed has left the stream.
void run(const Profiles &profiles, const Operation &operation, Variant variant);

}  // namespace bench
