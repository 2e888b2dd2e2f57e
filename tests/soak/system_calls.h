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

/// Reads what strace has written of one process: the calls between its marks.
Ranges read_marked_calls(const std::string &trace);

/// Reads what "strace -f" has written: all calls, of the process that makes most of a name.
Ranges read_all_calls(const std::string &trace);

/// One system call that is to fail: the n-th of its name.
struct Point {
    std::string name;
    long n;
    long last;  // of that name
};

/// Those of a run: all that can fail so in half an hour, one of several in less.
/// @param among_tests  one of so many, among the ordinary tests
std::vector<Point> draw_points(const Ranges &ranges, How how, std::mt19937 &random, unsigned among_tests);

/// The option that makes strace let it fail.
std::string fault(const Point &point, How how);

/// strace before the words of a program, of which it writes the calls to a file. Sanitizers, which cannot look for
/// leaks in a process that is traced, do not.
std::vector<std::string> traced(const std::string &trace, const std::vector<std::string> &options,
                                const std::vector<std::string> &program);

/// Whether a call has failed in such a trace.
bool has_failed(const std::string &trace);

}  // namespace soak
