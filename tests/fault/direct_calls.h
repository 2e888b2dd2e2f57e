// Functions of the direct road, how each of them fails, and what they must not leave behind.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/helpers.h"

/// One call, and its outcome when the n-th call that it makes fails for good: one outcome for each that can.
struct DirectCall : Callable {
    const char *sql;
    Outcome success;
    std::vector<Outcome> lock_file;  // open
    std::vector<Outcome> open;       // sqlite3_open
    std::vector<Outcome> exec;       // sqlite3_exec
    std::vector<Outcome> prepare;    // sqlite3_prepare_v2
    std::vector<Outcome> step;       // sqlite3_step
    std::vector<Outcome> file;       // the files that SQLite opens
    bool abandons;                   // a connection that SQLite could not open
    std::vector<Outcome> unread{};   // for want of memory a column reads as NULL
};

const std::vector<DirectCall> &direct_calls();

/// All databases get a table "numbers" with the rows (5, 6) and (7, 8), and nothing else.
void make_databases_small();

inline std::string call_name(const ::testing::TestParamInfo<DirectCall> &call) {
    return call.param.name;
}

/// Makes direct calls on small databases and looks for what they leave behind.
class DirectRoad : public ::testing::TestWithParam<DirectCall> {
protected:
    DirectRoad();

    /// Makes the call, its messages kept away.
    /// @param arm  is called right before
    static Outcome make_call(const std::function<void()> &arm);

    /// Expects that the calls up to now have left no lock, mutex or descriptor, and no memory of SQLite.
    void expect_nothing_left();

    /// The same, but for connections that could not be opened.
    void expect_connections_left();

private:
    void expect_no_lock_or_descriptor_left() const;

    int descriptors_;
    long long memory_;
};
