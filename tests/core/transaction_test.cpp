// Texts that hold a transaction, beside readers that make the database busy part way through it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>
#include <utility>

#include "core/helpers.h"
#include "support/database.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using support::Recorder;

// The word "select" keeps DbSqlExec from leaving its copy command behind.
constexpr char addition[] =
    "begin; insert into user_urlinfo(name) select 'a'; update counter set value = value + 1; commit;";

/// What happens in the middle of a text, once: at the function pause() of each new connection.
std::function<void()> between_statements;

void pause_once(sqlite3_context * /*context*/, int /*count*/, sqlite3_value ** /*values*/) {
    if (between_statements) {
        std::exchange(between_statements, nullptr)();
    }
}

int add_pause(sqlite3 *db, char ** /*message*/, const sqlite3_api_routines * /*api*/) {
    return sqlite3_create_function(db, "pause", 0, SQLITE_UTF8, nullptr, pause_once, nullptr, nullptr);
}

class Transaction : public ::testing::TestWithParam<Helper> {
protected:
    Transaction() {
        support::execute("create table counter(value); insert into counter values(0);");
        recorder_.watch([this](const std::string &line) {
            if (line.compare(0, 7, "usleep ") == 0 && sqlite3_get_autocommit(reader_.handle()) == 0) {
                reader_.execute(farewell_);
            }
        });
    }

    /// The reader stays until the call sleeps.
    void let_the_reader_in() const { reader_.execute("begin; select * from counter;"); }

    static int execute(const char *sql) { return static_cast<int>(GetParam().call(nullptr, sql).result); }
    static std::string counted() { return support::value("select value from counter;"); }
    static std::string rows() { return support::value("select count(*) from user_urlinfo;"); }

    const support::Database reader_;
    Recorder recorder_;
    const char *farewell_ = "commit;";
};

TEST_P(Transaction, that_a_reader_kept_busy_is_rolled_back_and_begun_again) {
    let_the_reader_in();
    EXPECT_EQ(execute(addition), 0);
    const std::string attempt =
        (support::build_profile.resumes_texts ? "sqlite3_prepare_v2 " : "sqlite3_exec ") + std::string(addition);
    EXPECT_EQ(recorder_.calls({"sqlite3_prepare_v2 begin; i", "sqlite3_exec begin; i", "sqlite3_exec rollback"}),
              (Lines{attempt, "sqlite3_exec rollback;", attempt}));
    EXPECT_EQ(recorder_.sleeps().size(), 1U);
    EXPECT_EQ(counted(), "1");
    EXPECT_EQ(rows(), "1");
}

TEST_P(Transaction, keeps_nobody_waiting_while_it_sleeps) {
    farewell_ = "update counter set value = 100; commit;";  // which a transaction left open would stand in the way of
    let_the_reader_in();
    EXPECT_EQ(execute(addition), 0);
    EXPECT_EQ(counted(), "101");
    EXPECT_EQ(rows(), "1");
}

TEST_P(Transaction, of_a_savepoint_is_rolled_back_as_well) {
    let_the_reader_in();
    EXPECT_EQ(execute("savepoint here; update counter set value = value + 1; release here;"), 0);
    EXPECT_EQ(counted(), "1");
}

TEST_P(Transaction, is_applied_again_with_what_stands_ahead_of_it_unless_that_is_done) {
    between_statements = [this] { let_the_reader_in(); };
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(add_pause));
    EXPECT_EQ(execute("update counter set value = value + 1; select pause();"
                      "begin; insert into user_urlinfo(name) values('a'); commit;"),
              0);
    sqlite3_reset_auto_extension();
    EXPECT_EQ(recorder_.sleeps().size(), 1U);
    EXPECT_EQ(counted(), support::build_profile.resumes_texts ? "1" : "2");
    EXPECT_EQ(rows(), "1");
}

TEST_P(Transaction, passes_readers_of_another_process_each_time) {
    const support::Process reader([] {
        const support::Database database;
        for (;;) {
            database.execute("begin; select * from counter; select * from user_urlinfo;");
            usleep(300);
            database.execute("commit;");
            usleep(100);
        }
        return false;
    });
    constexpr int times = 100;
    for (int n = 0; n < times; ++n) {
        ASSERT_EQ(execute(addition), 0) << n;
    }
    EXPECT_EQ(counted(), "100");
    EXPECT_EQ(rows(), "100");
}

INSTANTIATE_TEST_SUITE_P(, Transaction, ::testing::Values(helper("DbSqlExec"), helper("DB_EXEC_SQL_CHAR")),
                         helper_name);

}  // namespace
