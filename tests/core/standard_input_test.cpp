// GET_DB_SQLITE_SQL_INT closes standard input in one of the profiles, and what comes of that.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>

#include "core/helpers.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/profile.h"
#include "support/streams.h"

namespace {

constexpr bool closes = !support::build_profile.closes_its_own;

bool standard_input_is_open() {
    return fcntl(STDIN_FILENO, F_GETFD) >= 0;
}

class StandardInput : public ::testing::Test {
protected:
    StandardInput() { open_standard_input(); }

    /// Where the profile leaves it open, the test closes it itself.
    static void expect_closed_by(const char *sql, int result) {
        ASSERT_TRUE(standard_input_is_open());
        support::streams_of([&] { EXPECT_EQ(GET_DB_SQLITE_SQL_INT(sql), result); });
        EXPECT_EQ(standard_input_is_open(), !closes);
        if (!closes) {
            close(STDIN_FILENO);
        }
    }
};

TEST_F(StandardInput, is_closed_after_a_row) {
    expect_closed_by("select 5;", 5);
}

TEST_F(StandardInput, is_closed_without_a_row) {
    expect_closed_by("select 5 where 0;", 0);
}

TEST_F(StandardInput, is_closed_without_a_statement) {
    expect_closed_by(nullptr, 0);
}

TEST_F(StandardInput, is_closed_when_the_query_cannot_be_prepared) {
    expect_closed_by("nonsense;", -1);
}

TEST_F(StandardInput, is_closed_when_the_database_cannot_be_opened) {
    ASSERT_EQ(unlink(support::catalogue_database), 0);
    ASSERT_EQ(mkdir(support::catalogue_database, 0755), 0);
    const support::DeliberateLeak leak;
    expect_closed_by("select 5;", -1);
}

TEST_F(StandardInput, is_left_open_by_the_other_helpers) {
    const CallersConnection connection = open_callers_connection();
    for (const Helper &helper :
         helpers_that([](const Helper &helper) { return helper.name != std::string("GET_DB_SQLITE_SQL_INT"); })) {
        helper.call(connection.get(), "select 5;");
        EXPECT_TRUE(standard_input_is_open()) << helper;
    }
}

TEST_F(StandardInput, once_closed_is_filled_with_the_null_device_when_sqlite_opens_its_next_file) {
    expect_closed_by("select 5;", 5);
    const int descriptors = support::open_descriptors();
    EXPECT_EQ(GET_DB_SQL_INT_COUNT_ROUTE("select 7;"), 7);
    char target[PATH_MAX] = "";
    ASSERT_GT(readlink("/proc/self/fd/0", target, sizeof(target) - 1), 0);
    EXPECT_STREQ(target, "/dev/null");
    EXPECT_EQ(support::open_descriptors(), descriptors + 1);
}

TEST_F(StandardInput, once_closed_gives_its_number_to_a_lock_handle_that_is_as_good_as_any) {
    expect_closed_by("select 5;", 5);
    const int handle = get_db_lock();
    EXPECT_EQ(handle, 0);
    EXPECT_FALSE(support::lock_file_is_free());
    EXPECT_EQ(free_db_lock(handle), 0);
    EXPECT_TRUE(support::lock_file_is_free());
    EXPECT_FALSE(standard_input_is_open());
}

TEST_F(StandardInput, once_closed_does_not_keep_a_statement_from_being_executed_under_the_lock) {
    expect_closed_by("select 5;", 5);
    EXPECT_EQ(DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(support::value("select count(*) from user_urlinfo;"), "1");
    EXPECT_TRUE(support::lock_file_is_free());
}

}  // namespace
