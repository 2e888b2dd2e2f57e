// What the functions that run one statement ask of the platform and of SQLite, in which order, and what they hold
// meanwhile.
#include <gtest/gtest.h>

#include "core/helpers.h"
#include "core/holdings.h"
#include "support/recorder.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_main[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";
constexpr char open_catalogue[] = "sqlite3_open /etc/config/systemconf/database/dpilib.db";
constexpr char prepare[] = "sqlite3_prepare_v2 select 5;";

struct CallsCase : Helper {
    Lines calls;
    Lines holdings;
};

const Lines read_all_rows{open_main, prepare, "sqlite3_step", "sqlite3_step", "sqlite3_finalize", "sqlite3_close"};
const Lines read_all_rows_under_the_lock{"open lock file", "gettimeofday",     "srand",         "rand",
                                         "lock",           open_main,          prepare,         "sqlite3_step",
                                         "sqlite3_step",   "sqlite3_finalize", "sqlite3_close", "unlock",
                                         "close lock file"};
const Lines lock_alone{"sqlite3_open /etc/config/systemconf/database/myrouter.db: lock", "close lock file: nothing"};

const CallsCase calls_cases[] = {
    {helpers::db_sql_exec,
     {"open lock file", "gettimeofday", "srand", "rand", "lock", open_main, "sqlite3_exec select 5;", "sqlite3_free",
      "sqlite3_close", "unlock", "close lock file"},
     lock_alone},
    {helpers::exec_char,
     {"open lock file", "gettimeofday", "srand", "rand", "lock", open_main,
      "sqlite3_exec PRAGMA synchronous = NORMAL; ", "sqlite3_exec PRAGMA page_size = 12000; ",
      "sqlite3_exec PRAGMA cache_size = 4000; ", "sqlite3_exec select 5;", "sqlite3_free", "sqlite3_close", "unlock",
      "close lock file"},
     {"open lock file: mutex", "sqlite3_open /etc/config/systemconf/database/myrouter.db: mutex and lock",
      "close lock file: mutex", "afterwards: nothing"}},
    {helpers::exec_char_int, read_all_rows, {}},
    {helpers::exec_char_long, read_all_rows, {}},
    {helpers::exec_char_char, read_all_rows, {}},
    {helpers::int_count, read_all_rows_under_the_lock, lock_alone},
    {helpers::int_rows, read_all_rows_under_the_lock, lock_alone},
    {helpers::int_count_route,
     {"gettimeofday", "srand", "rand", open_main, prepare, "sqlite3_step", "sqlite3_finalize", "sqlite3_close"},
     {}},
    {helpers::int_count_dpi,
     {"gettimeofday", "srand", "rand", open_catalogue, prepare, "sqlite3_step", "sqlite3_finalize", "sqlite3_close"},
     {}},
    {helpers::sqlite_int,
     {"gettimeofday", "srand", "rand", open_catalogue, prepare, "sqlite3_step", "sqlite3_finalize", "sqlite3_close",
      "close 0"},
     {}},
    {helpers::sqlite_str_n, {"gettimeofday", "srand", "rand", prepare, "sqlite3_step", "sqlite3_finalize"}, {}},
};

using StatementHelper = HelperTest<CallsCase>;

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
    if (GetParam().call != helpers::sqlite_str_n.call) {  // its connection has read the schema and lives on
        EXPECT_EQ(sqlite3_memory_used(), memory);
    }
}

TEST_P(StatementHelper, steps_nothing_when_there_is_no_statement) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    call(" -- nothing");
    EXPECT_EQ(recorder.calls({"sqlite3_step", "sqlite3_finalize"}), Lines());
}

INSTANTIATE_TEST_SUITE_P(, StatementHelper, ::testing::ValuesIn(calls_cases), helper_name<CallsCase>);

TEST(DB_EXEC_SQL_CHAR, executes_without_a_copy_of_the_file) {
    Recorder recorder;
    ASSERT_EQ(DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(recorder.calls({"system"}), Lines());
    EXPECT_EQ(support::value("select count(*) from user_urlinfo;"), "1");
}

TEST(GET_DB_SQLITE_SQL_STR_N, leaves_the_callers_connection_open) {
    const CallersConnection connection = open_callers_connection();
    helpers::sqlite_str_n.call(connection.get(), "select 5;");
    EXPECT_EQ(sqlite3_exec(connection.get(), "insert into user_urlinfo(name) values('a');", nullptr, nullptr, nullptr),
              SQLITE_OK);
}

}  // namespace
