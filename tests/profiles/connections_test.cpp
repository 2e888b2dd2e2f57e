// The connections of one call: how many there are, and that none of them stands in the way of a write.
#include <gtest/gtest.h>

#include <algorithm>

#include "profiles/samples.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

bool starts_with(const std::string &line, const std::string &word) {
    return line.compare(0, word.size(), word) == 0;
}

/// What a trace says of the moment behind its last line.
struct Moment {
    bool locked = false;
    bool opened_since_lock = false;
    int statements = 0;

    void pass(const std::string &line);
};

void Moment::pass(const std::string &line) {
    if (line == "lock") {
        *this = {true, false, statements};
    } else if (line == "unlock") {
        locked = false;
    } else if (starts_with(line, "sqlite3_open")) {
        opened_since_lock = true;
    } else if (starts_with(line, "sqlite3_prepare")) {
        ++statements;
    } else if (line == "sqlite3_finalize") {
        --statements;
    }
}

bool is_write(const std::string &line) {
    return starts_with(line, "sqlite3_exec insert") || starts_with(line, "sqlite3_exec update") ||
           starts_with(line, "sqlite3_exec delete");
}

class Connections : public testing::TestWithParam<samples::Call> {
protected:
    static Lines trace() {
        samples::fill_databases();
        Recorder recorder;
        recorder.keep_commands_from_running();
        support::streams_of([] { GetParam().make(); });
        return recorder.calls();
    }
};

/// Whether a call does all it does on one connection.
bool goes_at_once(const samples::Call &call) {
    return support::build_profile.registers_at_once && call.writes_at_once != 0;
}

std::size_t connections_of(const samples::Call &call) {
    if (goes_at_once(call)) {
        return 1;
    }
    return call.writes + (support::build_profile.shares_connection ? call.shared_connections : call.readings);
}

TEST_P(Connections, are_as_many_as_the_profile_says_and_all_closed) {
    const samples::Call &call = GetParam();
    const Lines lines = trace();
    const auto count = [&](const char *word) {
        return static_cast<std::size_t>(std::count_if(
            lines.begin(), lines.end(), [&](const std::string &line) { return starts_with(line, word); }));
    };
    EXPECT_EQ(count("sqlite3_open"), connections_of(call));
    EXPECT_EQ(count("sqlite3_close"), count("sqlite3_open"));
}

TEST_P(Connections, of_writes_are_opened_under_the_lock_with_no_statement_open_anywhere) {
    Moment moment;
    std::size_t writes = 0;
    for (const std::string &line : trace()) {
        if (is_write(line)) {
            ++writes;
            EXPECT_TRUE(moment.locked && moment.opened_since_lock) << line;
            EXPECT_EQ(moment.statements, 0) << line;
        } else if (starts_with(line, "system")) {
            EXPECT_EQ(moment.statements, 0) << line;
        }
        moment.pass(line);
    }
    EXPECT_EQ(writes, goes_at_once(GetParam()) ? GetParam().writes_at_once : GetParam().writes);
}

INSTANTIATE_TEST_SUITE_P(, Connections, testing::ValuesIn(samples::calls()), testing::PrintToStringParamName());

}  // namespace
