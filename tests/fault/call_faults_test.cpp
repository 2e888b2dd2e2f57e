// The n-th call of the platform or of SQLite fails, for every n: the documented result, and nothing left behind.
#include <sqlite3.h>

#include <cerrno>
#include <set>

#include "fault/direct_calls.h"
#include "support/database.h"
#include "support/recorder.h"

namespace {

using support::Recorder;

constexpr int busy_codes[] = {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR};
constexpr int hard_codes[] = {SQLITE_CORRUPT, SQLITE_NOMEM, SQLITE_CANTOPEN};

class CallFaults : public DirectRoad {
protected:
    /// What a call sees whose n-th call of `function` is not made but answered.
    struct Answered {
        Outcome outcome;
        std::vector<unsigned> sleeps;
        bool came_up;
    };

    static Answered answer(const char *function, std::size_t n, int code) {
        Recorder recorder;
        for (std::size_t i = 1; i < n; ++i) {
            recorder.answer(function, {Recorder::really});
        }
        recorder.answer(function, {code});
        recorder.answer("draw", {0});
        const Outcome outcome = make_call([] {});
        const std::string line = std::string(function) == "open" ? "open lock file" : function;
        std::size_t calls = 0;
        for (const std::string &call : recorder.calls({line})) {
            calls += call == line || call[line.size()] == ' ' ? 1 : 0;  // sqlite3_open_v2 is not sqlite3_open
        }
        return {outcome, recorder.sleeps(), calls >= n};
    }

    /// Fails each call of `function` in turn.
    void fail_each(const char *function, int code, const std::vector<Outcome> &outcomes) {
        SCOPED_TRACE(std::string(function) + " with " + std::to_string(code));
        for (std::size_t n = 1; n <= outcomes.size(); ++n) {
            const Answered failed = answer(function, n, code);
            EXPECT_TRUE(failed.came_up) << n;
            EXPECT_EQ(failed.outcome, outcomes[n - 1]) << n;
            EXPECT_EQ(failed.sleeps, std::vector<unsigned>()) << n;
            expect_nothing_left();
        }
        expect_no_more(function, outcomes.size(), code);
    }

    void expect_no_more(const char *function, std::size_t n, int code) {
        const Answered done = answer(function, n + 1, code);
        EXPECT_FALSE(done.came_up);
        EXPECT_EQ(done.outcome, GetParam().success);
        expect_nothing_left();
    }

    /// Has each call of `function` in turn find the database busy, up to the `count`-th one.
    void keep_busy_each(const char *function, std::size_t ahead, std::size_t count) {
        for (const int code : busy_codes) {
            for (std::size_t n = ahead + 1; n <= count; ++n) {
                SCOPED_TRACE(std::string(function) + " with " + std::to_string(code) + ", call " + std::to_string(n));
                const Answered busy = answer(function, n, code);
                EXPECT_TRUE(busy.came_up);
                EXPECT_EQ(busy.outcome, GetParam().success);
                EXPECT_EQ(busy.sleeps.size(), 1U);
                expect_nothing_left();
            }
        }
    }
};

TEST_P(CallFaults, a_lock_file_that_cannot_be_opened) {
    for (const int error : {ENOENT, EACCES, EMFILE}) {
        fail_each("open", error, GetParam().lock_file);
    }
}

TEST_P(CallFaults, a_database_that_cannot_be_opened) {
    for (const int code : hard_codes) {
        fail_each("sqlite3_open", code, GetParam().open);
    }
}

TEST_P(CallFaults, a_text_that_cannot_be_executed) {
    for (const int code : hard_codes) {
        fail_each("sqlite3_exec", code, GetParam().exec);
    }
}

TEST_P(CallFaults, a_query_that_cannot_be_prepared) {
    for (const int code : hard_codes) {
        fail_each("sqlite3_prepare_v2", code, GetParam().prepare);
    }
}

TEST_P(CallFaults, rows_that_do_not_come) {
    for (const int code : hard_codes) {
        fail_each("sqlite3_step", code, GetParam().step);
    }
}

TEST_P(CallFaults, a_database_that_is_busy_once) {
    const std::size_t statements = GetParam().exec.size();
    keep_busy_each("sqlite3_open", 0, GetParam().open.size());
    keep_busy_each("sqlite3_exec", statements > 0 ? statements - 1 : 0, statements);  // what comes ahead is not retried
    keep_busy_each("sqlite3_prepare_v2", 0, GetParam().prepare.size());
    keep_busy_each("sqlite3_step", 0, GetParam().step.empty() ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(, CallFaults, ::testing::ValuesIn(direct_calls()), call_name);

TEST(DirectCalls, are_those_of_every_statement_helper) {
    std::set<std::string> met;
    for (const DirectCall &call : direct_calls()) {
        met.insert(call.name);
    }
    for (const Helper &helper : helpers()) {
        EXPECT_EQ(met.count(helper.name), 1U) << helper;
    }
}

}  // namespace
