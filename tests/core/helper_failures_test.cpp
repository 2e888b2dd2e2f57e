// How the functions that run one statement fail.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/helpers.h"
#include "core/holdings.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;

/// Both databases become something that SQLite cannot open (code 14).
void make_databases_unusable() {
    for (const char *const path : {support::main_database, support::catalogue_database}) {
        ASSERT_EQ(unlink(path), 0);
        ASSERT_EQ(mkdir(path, 0755), 0);
    }
}

/// What a call holds while it writes a message on standard output or standard error; "no message" without one.
template <typename Call>
std::string held_at_message(Call call) {
    std::string held = "no message";
    const support::WatchedStreams streams([&](const std::string & /*text*/) { held = Holdings::held(); });
    call();
    return held;
}

class FailureTest : public HelperTest {
protected:
    Traces traces_of(const char *sql) const {
        Traces traces{};
        support::Streams streams;
        traces.outcome = call(sql);
        const support::Streams::Text text = streams.take();
        traces.output = text.output;
        traces.error = text.error;
        traces.log = recorder_.calls({"syslog"});
        return traces;
    }

    /// The message of a failure comes before anything is released.
    void expect_told_while_held(const char *sql, const Traces &traces) const {
        const bool prints = !traces.output.empty() || !traces.error.empty();
        EXPECT_EQ(held_at_message([&] { call(sql); }), prints ? GetParam().held_when_it_prints : "no message");
    }

    mutable Recorder recorder_;
};

using OpenFailure = FailureTest;

TEST_P(OpenFailure, is_told_and_not_retried) {
    make_databases_unusable();
    const support::DeliberateLeak leak(GetParam().abandons);
    EXPECT_EQ(traces_of("select 5;"), GetParam().open_failure);
    EXPECT_EQ(recorder_.sleeps(), std::vector<unsigned>());
    EXPECT_EQ(recorder_.calls({"sqlite3_open"}).size(), 1U);
    EXPECT_EQ(recorder_.calls({"sqlite3_prepare_v2", "sqlite3_exec"}), Lines());
}

TEST_P(OpenFailure, releases_all_but_an_abandoned_connection) {
    make_databases_unusable();
    const support::DeliberateLeak leak(GetParam().abandons);
    const int descriptors = support::open_descriptors();
    const sqlite3_int64 memory = sqlite3_memory_used();
    traces_of("select 5;");
    EXPECT_EQ(recorder_.calls({"sqlite3_close"}).size(), GetParam().abandons ? 0U : 1U);
    EXPECT_EQ(sqlite3_memory_used() > memory, GetParam().abandons);
    EXPECT_EQ(support::open_descriptors(), descriptors - static_cast<int>(recorder_.calls({"close 0"}).size()));
    EXPECT_TRUE(support::lock_file_is_free());
    EXPECT_TRUE(mutex_is_free());
}

TEST_P(OpenFailure, is_told_before_anything_is_released) {
    make_databases_unusable();
    const support::DeliberateLeak leak(GetParam().abandons);
    expect_told_while_held("select 5;", GetParam().open_failure);
}

TEST_P(OpenFailure, any_code_but_busy_locked_and_io_error_is_final) {
    for (const int code : {SQLITE_ERROR, SQLITE_PERM, SQLITE_NOMEM, SQLITE_READONLY, SQLITE_CORRUPT, SQLITE_FULL,
                           SQLITE_PROTOCOL, SQLITE_MISUSE, SQLITE_NOTADB}) {
        recorder_.answer("sqlite3_open", {code});
        EXPECT_EQ(traces_of("select 5;").outcome, GetParam().open_failure.outcome) << code;
    }
    EXPECT_EQ(recorder_.sleeps(), std::vector<unsigned>());
}

INSTANTIATE_TEST_SUITE_P(, OpenFailure,
                         ::testing::ValuesIn(helpers_that([](const Helper &helper) { return helper.opens; })),
                         helper_name);

using StatementFailure = FailureTest;

TEST_P(StatementFailure, is_told_and_not_retried) {
    EXPECT_EQ(traces_of("nonsense;"), GetParam().statement_failure);
    EXPECT_EQ(recorder_.sleeps(), std::vector<unsigned>());
    EXPECT_EQ(recorder_.calls({"sqlite3_prepare_v2 nonsense;", "sqlite3_exec nonsense;"}).size(), 1U);
}

TEST_P(StatementFailure, releases_everything) {
    traces_of("nonsense;");  // the caller's connection keeps the message
    const int descriptors = support::open_descriptors();
    const sqlite3_int64 memory = sqlite3_memory_used();
    traces_of("nonsense;");
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_EQ(sqlite3_memory_used(), memory);
    EXPECT_TRUE(support::lock_file_is_free());
    EXPECT_TRUE(mutex_is_free());
}

TEST_P(StatementFailure, is_told_before_anything_is_released) {
    expect_told_while_held("nonsense;", GetParam().statement_failure);
}

TEST_P(StatementFailure, any_code_but_busy_locked_and_io_error_is_final) {
    for (const int code : {SQLITE_ERROR, SQLITE_PERM, SQLITE_NOMEM, SQLITE_READONLY, SQLITE_CORRUPT, SQLITE_FULL,
                           SQLITE_CANTOPEN, SQLITE_SCHEMA, SQLITE_MISUSE, SQLITE_NOTADB}) {
        recorder_.answer("sqlite3_prepare_v2", {code});
        for (int i = 0; i < GetParam().statements_ahead; ++i) {
            recorder_.answer("sqlite3_exec", {Recorder::really});
        }
        recorder_.answer("sqlite3_exec", {code});
        EXPECT_EQ(traces_of("select 5;").outcome, GetParam().statement_failure.outcome) << code;
    }
    EXPECT_EQ(recorder_.sleeps(), std::vector<unsigned>());
}

INSTANTIATE_TEST_SUITE_P(, StatementFailure, ::testing::ValuesIn(helpers()), helper_name);

using MissingLockFile = FailureTest;

TEST_P(MissingLockFile, keeps_the_helper_from_everything_else) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    EXPECT_EQ(traces_of("select 5;"), (Traces{{-1, ""}, "", support::cannot_open_lock_file, {}}));
    EXPECT_EQ(recorder_.calls(), Lines{"open lock file"});
    EXPECT_FALSE(support::file_exists(support::lock_file));
    EXPECT_TRUE(mutex_is_free());
}

INSTANTIATE_TEST_SUITE_P(, MissingLockFile,
                         ::testing::ValuesIn(helpers_that([](const Helper &helper) { return helper.locks; })),
                         helper_name);

TEST(DB_EXEC_SQL_CHAR, goes_on_when_its_pragmas_fail) {
    Recorder recorder;
    recorder.answer("sqlite3_exec", {SQLITE_BUSY, SQLITE_ERROR, SQLITE_NOMEM});
    EXPECT_EQ(DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>());
}

TEST(StatementHelpers, rows_end_with_an_error_behind_a_row) {
    for (const int code : {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR, SQLITE_CORRUPT}) {
        Recorder recorder;
        recorder.answer("sqlite3_step", {Recorder::really, code});
        EXPECT_EQ(GET_DB_SQL_INT("values(1),(2),(3);"), 1);
        EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>());
    }
}

}  // namespace
