// System calls of a program as strace tells them, and how it makes them fail.
#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace soak {

enum class How : std::uint8_t {
    once,
    from_there_on,  // all calls of that name
    interrupted,    // by a signal, once
};

/// How many calls of a name one process makes before those that are looked at, and up to their end.
struct Range {
    long before = 0;
    long end = 0;
};
using Ranges = std::map<std::string, Range>;

/// A system call that nothing else makes: between two of them are those that are looked at.
void mark();

/// Reads what strace has written last, of one process: the calls between its marks.
Ranges read_marked_calls();

/// Reads what "strace -f" has written: all calls, of the process that makes most of a name.
Ranges read_all_calls();

/// One system call that is to fail: the n-th of its name.
struct Point {
    std::string name;
    long n;
    long last;  // of that name
};

/// One of how many points a run takes; in a longer one it takes more of them, to all that there are.
struct Share {
    long among_tests;
    long in_half_an_hour;
};

/// Those of a run that can fail so.
std::vector<Point> draw_points(const Ranges &ranges, How how, std::mt19937 &random, Share share);

/// The option that makes strace let it fail.
std::string fault(const Point &point, How how);

/// What a traced program prints, on both streams.
inline constexpr char traced_output[] = "/tmp/traced-output";

/// Becomes strace, which runs a program and writes its calls to a file. Sanitizers, which cannot look for leaks in a
/// process that is traced, do not. Returns only when there is no strace: false.
bool become_traced(const std::vector<std::string> &options, const std::vector<std::string> &program);

/// Whether a call has failed in the program that was traced last.
bool has_failed();

}  // namespace soak
