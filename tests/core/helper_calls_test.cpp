// What the functions that run one statement ask of the platform and of SQLite, in which order, and what they hold
// meanwhile.
#include <gtest/gtest.h>

#include <set>

#include "core/helpers.h"
#include "core/holdings.h"
#include "support/exported_names.h"
#include "support/recorder.h"

namespace {

using support::Recorder;
TEST(StatementHelpers, are_those_that_the_tests_know) {
    std::set<std::string> known;
    for (const Helper &helper : helpers()) {
        known.insert(helper.name);
    }
    const auto exported = support::exported_names("DbSqlExec|DB_EXEC_SQL\\w+|GET_DB_SQL\\w+");
    EXPECT_EQ(known, std::set<std::string>(exported.begin(), exported.end()));
}

using StatementHelper = HelperTest;

TEST_P(StatementHelper, makes_these_calls_and_no_others) {
    Recorder recorder;
    call("select 5;");
    EXPECT_EQ(recorder.calls(), GetParam().calls);
}

TEST_P(StatementHelper, holds_its_locks_from_before_the_database_is_opened_until_it_is_closed) {
    Recorder recorder;
    recorder.answer("sqlite3_open", {SQLITE_BUSY});
    recorder.answer("sqlite3_prepare_v2", {SQLITE_BUSY});
    Holdings holdings(recorder);
    call("select 5;");
    EXPECT_EQ(holdings.changes(), GetParam().holdings);
}

TEST_P(StatementHelper, leaves_no_descriptor_and_no_memory_of_sqlite) {
    const int descriptors = support::open_descriptors();
    const sqlite3_int64 memory = sqlite3_memory_used();
    call("select 5;");
    const bool closes_standard_input = GetParam().calls.back() == "close 0";
    EXPECT_EQ(support::open_descriptors(), descriptors - (closes_standard_input ? 1 : 0));
    if (GetParam().opens) {  // the caller's connection has read the schema and lives on
        EXPECT_EQ(sqlite3_memory_used(), memory);
    }
}

TEST_P(StatementHelper, steps_nothing_when_there_is_no_statement) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    call(" -- nothing");
    EXPECT_EQ(recorder.calls({"sqlite3_step", "sqlite3_finalize"}), Lines());
}

INSTANTIATE_TEST_SUITE_P(, StatementHelper, ::testing::ValuesIn(helpers()), helper_name);

TEST(DB_EXEC_SQL_CHAR, executes_without_a_copy_of_the_file) {
    Recorder recorder;
    ASSERT_EQ(DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(recorder.calls({"system"}), Lines());
    EXPECT_EQ(support::value("select count(*) from user_urlinfo;"), "1");
}

TEST(GET_DB_SQLITE_SQL_STR_N, leaves_the_callers_connection_open) {
    const CallersConnection connection = open_callers_connection();
    helper("GET_DB_SQLITE_SQL_STR_N").call(connection.get(), "select 5;");
    EXPECT_EQ(sqlite3_exec(connection.get(), "insert into user_urlinfo(name) values('a');", nullptr, nullptr, nullptr),
              SQLITE_OK);
}

}  // namespace
