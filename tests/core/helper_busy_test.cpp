// How the functions that run one statement wait for a busy database.
#include <gtest/gtest.h>

#include <numeric>

#include "core/helpers.h"
#include "core/holdings.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;

class Busy : public HelperTest {
protected:
    /// The statement itself meets these codes, one after the other.
    void answer_statement(std::initializer_list<int> codes) {
        for (int i = 0; i < GetParam().statements_ahead; ++i) {
            recorder_.answer("sqlite3_exec", {Recorder::really});
        }
        recorder_.answer("sqlite3_exec", codes);
        recorder_.answer("sqlite3_prepare_v2", codes);
    }

    /// The statement meets a code for longer than where waiting is limited.
    /// @param limit   of that, in microseconds
    /// @param reason  that errno tells then
    void expect_patience(int code, unsigned limit, int reason);

    const support::Database other_{GetParam().database};
    Recorder recorder_;
};

void Busy::expect_patience(int code, unsigned limit, int reason) {
    constexpr unsigned many = 6000;
    for (unsigned i = 0; i < many; ++i) {
        recorder_.answer("usleep", {0});
    }
    recorder_.answer("draw", {0});
    answer_statement({});
    for (unsigned i = 0; i < many; ++i) {
        recorder_.answer("sqlite3_exec", {code});
        recorder_.answer("sqlite3_prepare_v2", {code});
    }
    Outcome outcome{};
    support::expect_errno(support::build_profile.limits_waiting ? reason : support::found_errno,
                          [&] { outcome = call("select 5;"); });
    const Sleeps slept = recorder_.sleeps();
    const unsigned first = GetParam().sleeps[0];
    const unsigned step = GetParam().sleeps[1] - first;
    EXPECT_EQ(slept.back(), first + (static_cast<unsigned>(slept.size()) - 1) * step);
    if (support::build_profile.limits_waiting) {
        const unsigned total = std::accumulate(slept.begin(), slept.end(), 0U);
        EXPECT_EQ(outcome, GetParam().statement_failure.outcome);
        EXPECT_LE(total, limit);
        EXPECT_GT(total + slept.back() + step, limit);  // one more would have been too much
    } else {
        EXPECT_EQ(outcome, GetParam().outcomes.five);
        EXPECT_EQ(slept.size(), many);
    }
}

TEST_P(Busy, sleeps_grow_through_one_series) {
    recorder_.answer("draw", {0});
    if (GetParam().opens) {
        recorder_.answer("sqlite3_open", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
        answer_statement({SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    } else {
        answer_statement({SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR, SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    EXPECT_EQ(call("select 5;"), GetParam().outcomes.five);
    EXPECT_EQ(recorder_.sleeps(), GetParam().sleeps);
}

TEST_P(Busy, the_first_sleep_has_an_upper_bound) {
    recorder_.answer("draw", {RAND_MAX});
    answer_statement({SQLITE_BUSY});
    EXPECT_EQ(call("select 5;"), GetParam().outcomes.five);
    EXPECT_EQ(recorder_.sleeps(), Sleeps{GetParam().longest_first});
}

TEST_P(Busy, nothing_is_printed_while_it_lasts) {
    answer_statement({SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    const support::Streams::Text text = support::streams_of([&] { call("select 5;"); });
    EXPECT_EQ(text.output + text.error, "");
}

TEST_P(Busy, retries_have_no_limit_or_that_of_a_minute) {
    expect_patience(SQLITE_BUSY, 60'000'000, ETIMEDOUT);
}

TEST_P(Busy, retries_after_io_errors_have_no_limit_or_that_of_half_a_minute) {
    expect_patience(SQLITE_IOERR, 30'000'000, EIO);
}

TEST_P(Busy, waits_until_another_process_lets_go_of_the_database) {
    other_.execute("begin exclusive;");
    int sleeps = 0;
    recorder_.watch([&](const std::string &line) {
        if (line.compare(0, 7, "usleep ") == 0 && ++sleeps == 3) {
            other_.execute("commit;");
        }
    });
    EXPECT_EQ(call("select 5 from sqlite_master limit 1;"), GetParam().outcomes.five);
    EXPECT_EQ(sleeps, 3);
}

INSTANTIATE_TEST_SUITE_P(, Busy, ::testing::ValuesIn(helpers()), helper_name);

using BusyReader = Busy;

TEST_P(BusyReader, the_first_step_belongs_to_the_series) {
    recorder_.answer("draw", {0});
    recorder_.answer("sqlite3_prepare_v2", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder_.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    EXPECT_EQ(call("select 5;"), GetParam().outcomes.five);
    EXPECT_EQ(recorder_.sleeps(), GetParam().sleeps);
}

TEST_P(BusyReader, a_failing_first_step_is_final) {
    recorder_.answer("sqlite3_step", {SQLITE_CORRUPT});
    call("select 5;");
    EXPECT_EQ(recorder_.sleeps(), Sleeps());
    EXPECT_EQ(recorder_.calls({"sqlite3_step"}).size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(, BusyReader, ::testing::ValuesIn(helpers_that(reads_rows)), helper_name);

TEST(StatementHelpers, a_random_first_delay_is_whole_microseconds) {
    constexpr struct {
        int drawn;
        unsigned sleep;
    } draws[] = {{0, 56}, {21474836, 56}, {21474837, 57}, {1073741824, 106}, {2126008811, 154}, {2126008812, 155}};
    for (const auto &draw : draws) {
        Recorder recorder;
        recorder.answer("draw", {draw.drawn});
        recorder.answer("sqlite3_open", {SQLITE_BUSY});
        helper("GET_DB_SQL_INT_COUNT_ROUTE").call(nullptr, "select 5;");
        EXPECT_EQ(recorder.sleeps(), Sleeps{draw.sleep}) << draw.drawn;
    }
}

TEST(DB_EXEC_SQL_CHAR_INT, logs_after_each_sleep) {
    const support::Database other;
    other.execute("begin exclusive;");
    Recorder recorder;
    recorder.answer("sqlite3_open", {SQLITE_BUSY});
    recorder.watch([&](const std::string &line) {
        if (line == "usleep 165") {
            other.execute("commit;");
        }
    });
    EXPECT_EQ(helper("DB_EXEC_SQL_CHAR_INT").call(nullptr, "select 5 from sqlite_master limit 1;"),
              (Outcome{0, "1001"}));
    EXPECT_EQ(recorder.calls({"usleep", "syslog"}),
              (Lines{"usleep 155", "syslog 3 sql busy/locked cmdline, Error: out of memory\n", "usleep 160",
                     "syslog 3 sql busy/locked cmdline, Error: database is locked\n", "usleep 165",
                     "syslog 3 sql busy/locked cmdline, Error: database is locked\n"}));
}

TEST(StatementHelpers, a_statement_that_is_ready_waits_for_its_first_row) {
    const CallersConnection connection = open_callers_connection();
    const support::Database other;
    const Callable &read = helper("GET_DB_SQLITE_SQL_STR_N");
    read.call(connection.get(), "select 5 from sqlite_master;");  // reads the schema
    other.execute("begin exclusive;");
    Recorder recorder;
    recorder.watch([&](const std::string &line) {
        if (line.compare(0, 7, "usleep ") == 0) {
            other.execute("commit;");
        }
    });
    EXPECT_EQ(read.call(connection.get(), "select 5 from sqlite_master;"), (Outcome{0, "5"}));
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2", "sqlite3_step", "usleep"}).size(), 4U);
}

}  // namespace
