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
using Lines = std::vector<std::string>;

/// What a failure leaves for others to see.
struct Traces {
    Outcome outcome;
    std::string output;
    std::string error;
    Lines log;
};

bool operator==(const Traces &left, const Traces &right) {
    return left.outcome == right.outcome && left.output == right.output && left.error == right.error &&
           left.log == right.log;
}

std::ostream &operator<<(std::ostream &out, const Traces &traces) {
    out << traces.outcome << "\noutput: " << traces.output << "\nerror: " << traces.error;
    for (const std::string &line : traces.log) {
        out << "\n" << line;
    }
    return out;
}

/// Both databases become something that SQLite cannot open (code 14).
void make_databases_unusable() {
    for (const char *const path : {support::main_database, support::catalogue_database}) {
        ASSERT_EQ(unlink(path), 0);
        ASSERT_EQ(mkdir(path, 0755), 0);
    }
}

template <typename Case>
class FailureTest : public HelperTest<Case> {
protected:
    Traces traces_of(const char *sql) const {
        Traces traces{};
        support::Streams streams;
        traces.outcome = this->call(sql);
        const support::Streams::Text text = streams.take();
        traces.output = text.output;
        traces.error = text.error;
        traces.log = recorder_.calls({"syslog"});
        return traces;
    }

    mutable Recorder recorder_;
};

struct OpenCase : Helper {
    Traces traces;
    bool abandons;  // the connection that SQLite could not open
};

constexpr char open_message[] = "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";
constexpr char open_log[] = "syslog 3 cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";

const OpenCase open_cases[] = {
    {helpers::db_sql_exec, {{-1, ""}, "", open_message, {}}, true},
    {helpers::exec_char, {{-1, ""}, "", open_message, {}}, false},
    {helpers::exec_char_int, {{-1, "1000"}, "", "", {open_log}}, true},
    {helpers::exec_char_long, {{-1, "1000"}, "", "", {open_log}}, false},
    {helpers::exec_char_char, {{-1, "before"}, "", open_message, {}}, false},
    {helpers::int_count, {{-1, ""}, "", open_message, {}}, false},
    {helpers::int_rows, {{-1, ""}, "", open_message, {}}, false},
    {helpers::int_count_route, {{-1, ""}, "", "", {}}, true},
    {helpers::int_count_dpi, {{-1, ""}, "", "", {}}, true},
    {helpers::sqlite_int, {{-1, ""}, "", "", {}}, true},
};

using OpenFailure = FailureTest<OpenCase>;

TEST_P(OpenFailure, is_told_and_not_retried) {
    make_databases_unusable();
    const support::DeliberateLeak leak(GetParam().abandons);
    EXPECT_EQ(traces_of("select 5;"), GetParam().traces);
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

TEST_P(OpenFailure, any_code_but_busy_locked_and_io_error_is_final) {
    for (const int code : {SQLITE_ERROR, SQLITE_PERM, SQLITE_NOMEM, SQLITE_READONLY, SQLITE_CORRUPT, SQLITE_FULL,
                           SQLITE_PROTOCOL, SQLITE_MISUSE, SQLITE_NOTADB}) {
        recorder_.answer("sqlite3_open", {code});
        EXPECT_EQ(traces_of("select 5;").outcome, GetParam().traces.outcome) << code;
    }
    EXPECT_EQ(recorder_.sleeps(), std::vector<unsigned>());
}

INSTANTIATE_TEST_SUITE_P(, OpenFailure, ::testing::ValuesIn(open_cases), helper_name<OpenCase>);

struct StatementCase : Helper {
    Traces traces;
};

const StatementCase statement_cases[] = {
    {helpers::db_sql_exec, {{-1, ""}, "cannot exec sql cmdline, Error: near \"nonsense\": syntax error\n", "", {}}},
    {helpers::exec_char, {{-1, ""}, "cannot exec sql cmdline, Error: near \"nonsense\": syntax error\n", "", {}}},
    {helpers::exec_char_int,
     {{0, "1000"}, "", "", {"syslog 3 cannot prepare sql cmdline, Error: near \"nonsense\": syntax error\n"}}},
    {helpers::exec_char_long,
     {{0, "1000"}, "", "", {"syslog 3 cannot prepare sql cmdline, Error: near \"nonsense\": syntax error\n"}}},
    {helpers::exec_char_char,
     {{0, "before"}, "cannot prepare sql cmdline, Error: near \"nonsense\": syntax error\n", "", {}}},
    {helpers::int_count, {{-1, ""}, "cannot exec sql cmdline, Error: (null)\n", "", {}}},
    {helpers::int_rows, {{-1, ""}, "cannot exec sql cmdline, Error: (null)\n", "", {}}},
    {helpers::int_count_route, {{-1, ""}, "Error: near \"nonsense\": syntax error", "", {}}},
    {helpers::int_count_dpi, {{-1, ""}, "Error: near \"nonsense\": syntax error", "", {}}},
    {helpers::sqlite_int, {{-1, ""}, "Error: near \"nonsense\": syntax error", "", {}}},
    {helpers::sqlite_str_n, {{0xffffffffLL, "before"}, "Webserver Error: near \"nonsense\": syntax error", "", {}}},
};

using StatementFailure = FailureTest<StatementCase>;

TEST_P(StatementFailure, is_told_and_not_retried) {
    EXPECT_EQ(traces_of("nonsense;"), GetParam().traces);
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

TEST_P(StatementFailure, any_code_but_busy_locked_and_io_error_is_final) {
    for (const int code : {SQLITE_ERROR, SQLITE_PERM, SQLITE_NOMEM, SQLITE_READONLY, SQLITE_CORRUPT, SQLITE_FULL,
                           SQLITE_CANTOPEN, SQLITE_SCHEMA, SQLITE_MISUSE, SQLITE_NOTADB}) {
        recorder_.answer("sqlite3_prepare_v2", {code});
        if (GetParam().call == helpers::exec_char.call) {
            recorder_.answer("sqlite3_exec", {Recorder::really, Recorder::really, Recorder::really});
        }
        recorder_.answer("sqlite3_exec", {code});
        EXPECT_EQ(traces_of("select 5;").outcome, GetParam().traces.outcome) << code;
    }
    EXPECT_EQ(recorder_.sleeps(), std::vector<unsigned>());
}

INSTANTIATE_TEST_SUITE_P(, StatementFailure, ::testing::ValuesIn(statement_cases), helper_name<StatementCase>);

using MissingLockFile = FailureTest<Helper>;

TEST_P(MissingLockFile, keeps_the_helper_from_everything_else) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    EXPECT_EQ(traces_of("select 5;"), (Traces{{-1, ""}, "", "cannot open /var/databaselock!\n", {}}));
    EXPECT_EQ(recorder_.calls(), Lines{"open lock file"});
    EXPECT_FALSE(support::file_exists(support::lock_file));
    EXPECT_TRUE(mutex_is_free());
}

INSTANTIATE_TEST_SUITE_P(, MissingLockFile,
                         ::testing::Values(helpers::db_sql_exec, helpers::exec_char, helpers::int_count,
                                           helpers::int_rows),
                         helper_name<Helper>);

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
