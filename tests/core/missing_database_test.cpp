// What becomes of a database file that is not there.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "core/helpers.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/streams.h"

namespace {

class MissingDatabase : public testing::TestWithParam<Helper> {};

TEST_P(MissingDatabase, is_left_behind_empty_by_a_mere_query) {
    open_standard_input();
    ASSERT_EQ(unlink(GetParam().database), 0);
    support::streams_of([] { GetParam().call(nullptr, "select 1;"); });
    ASSERT_TRUE(support::file_exists(GetParam().database));
    EXPECT_EQ(std::filesystem::file_size(GetParam().database), 0U);
}

INSTANTIATE_TEST_SUITE_P(, MissingDatabase, testing::ValuesIn(helpers_that([](const Helper &helper) {
                             return reads_rows(helper) && helper.opens;
                         })),
                         helper_name);

TEST(MissingMainDatabase, once_read_is_not_missing_any_more_for_a_script_that_copies_the_factory_file) {
    const std::string script = "test -e " + std::string(support::main_database) + " || cp " +
                               support::factory_database + " " + support::main_database;
    const auto tables = [] { return support::value("select count(*) > 0 from sqlite_master;"); };

    ASSERT_EQ(unlink(support::main_database), 0);
    ASSERT_EQ(std::system(script.c_str()), 0);  // NOLINT(cert-env33-c)
    EXPECT_EQ(tables(), "1");

    ASSERT_EQ(unlink(support::main_database), 0);
    support::streams_of([] { EXPECT_EQ(GET_DB_SQL_INT("select * from DevInfo;"), -1); });
    ASSERT_EQ(std::system(script.c_str()), 0);  // NOLINT(cert-env33-c)
    EXPECT_EQ(tables(), "0");
}

TEST(MissingMainDatabase, is_not_made_where_its_directory_is_missing) {
    const std::filesystem::path directory = std::filesystem::path(support::main_database).parent_path();
    std::filesystem::remove_all(directory);
    support::streams_of([] { EXPECT_EQ(GET_DB_SQL_INT("select 1;"), -1); });
    EXPECT_FALSE(std::filesystem::exists(directory));
}

}  // namespace
