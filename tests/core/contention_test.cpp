// Many processes and threads at once.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <deque>
#include <functional>
#include <thread>

#include "core/helpers.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/process.h"

namespace {

using support::Process;

// Two statements and no transaction around them: only a lock around both keeps the count right. The capitals make
// DbSqlExec leave its copy command behind.
constexpr char increment[] =
    "update counter set read = (SELECT value from counter); update counter set value = read + 1;";

class Contention : public ::testing::Test {
protected:
    Contention() { support::execute("create table counter(value, read); insert into counter values(0, 0);"); }

    static std::string counted() { return support::value("select value from counter;"); }

    /// `count` processes that do something `times` times. It returns 0.
    static void run_processes(int count, int times, const std::function<int()> &action) {
        std::deque<Process> processes;
        for (int i = 0; i < count; ++i) {
            processes.emplace_back([&] {
                bool well = true;
                for (int n = 0; n < times; ++n) {
                    well = action() == 0 && well;
                }
                return well;
            });
        }
        for (Process &process : processes) {
            EXPECT_EQ(process.wait(), 0);
        }
    }
};

TEST_F(Contention, no_process_loses_an_increment_through_db_sql_exec) {
    run_processes(8, 200, [] {
        char sql[sizeof(increment)];
        return DbSqlExec(std::strcpy(sql, increment));
    });
    EXPECT_EQ(counted(), "1600");
}

TEST_F(Contention, no_process_loses_an_increment_through_db_exec_sql_char) {
    run_processes(8, 200, [] { return DB_EXEC_SQL_CHAR(increment); });
    EXPECT_EQ(counted(), "1600");
}

TEST_F(Contention, no_process_loses_an_increment_of_its_own_between_taking_the_lock_and_giving_it_back) {
    run_processes(8, 50, [] {
        const int handle = get_db_lock();
        const int value = GET_DB_SQL_INT_COUNT_ROUTE("select value from counter;");  // takes no lock itself
        support::execute("update counter set value = " + std::to_string(value + 1) + ";");
        return free_db_lock(handle);
    });
    EXPECT_EQ(counted(), "400");
}

TEST_F(Contention, no_thread_loses_an_increment_through_db_exec_sql_char) {
    std::thread threads[8];
    for (std::thread &thread : threads) {
        thread = std::thread([] {
            for (int n = 0; n < 50; ++n) {
                EXPECT_EQ(DB_EXEC_SQL_CHAR(increment), 0);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counted(), "400");
}

TEST_F(Contention, readers_beside_exclusive_writers_always_see_the_row) {
    const auto write = [] {
        const support::Database database;
        for (;;) {
            database.execute("begin exclusive; update counter set value = value + 1; commit;");
            usleep(100);
        }
        return false;
    };
    const Process first_writer(write);
    const Process second_writer(write);
    ASSERT_TRUE(support::eventually([] { return counted() != "0"; }));

    const CallersConnection connection = open_callers_connection();
    const std::vector<Helper> readers = helpers_that(
        [](const Helper &helper) { return reads_rows(helper) && helper.database == support::main_database; });
    constexpr std::size_t reads = 2100;
    for (std::size_t i = 0; i < reads; ++i) {
        const Helper &reader = readers[i % readers.size()];
        ASSERT_EQ(reader.call(connection.get(), "select 5 from counter;"), reader.outcomes.five)
            << reader << ", read " << i;
    }
}

}  // namespace
