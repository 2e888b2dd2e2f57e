// What the functions that run one statement make of the rows of a query.
#include <gtest/gtest.h>

#include <cstdlib>

#include "core/helpers.h"
#include "support/streams.h"

namespace {

using RowsOf = HelperTest;

TEST_P(RowsOf, a_query_without_rows) {
    EXPECT_EQ(call("select 5 where 0;"), GetParam().outcomes.no_row);
}

TEST_P(RowsOf, a_null_column) {
    EXPECT_EQ(call("select null;"), GetParam().outcomes.null_column);
}

TEST_P(RowsOf, a_second_row_without_a_second_column) {
    EXPECT_EQ(call("values(5),(7);"), GetParam().outcomes.rows_5_and_7);
}

TEST_P(RowsOf, two_rows_of_two_columns) {
    EXPECT_EQ(call("values(1,2),(3,4);"), GetParam().outcomes.rows_of_two);
}

TEST_P(RowsOf, three_rows_of_three_columns) {
    EXPECT_EQ(call("values(11,12,13),(21,22,23),(31,32,33);"), GetParam().outcomes.rows_of_three);
}

TEST_P(RowsOf, a_null_column_in_the_last_row) {
    EXPECT_EQ(call("values(8,9),(null,null);"), GetParam().outcomes.null_in_last_row);
}

TEST_P(RowsOf, a_text_without_a_statement_has_no_rows) {
    for (const char *const sql : {"", ";", " -- nothing", static_cast<const char *>(nullptr)}) {
        Outcome outcome{};
        const support::Streams::Text text = support::streams_of([&] { outcome = call(sql); });
        EXPECT_EQ(outcome, GetParam().outcomes.no_row);
        EXPECT_EQ(text.output + text.error, "");
    }
}

INSTANTIATE_TEST_SUITE_P(, RowsOf, ::testing::ValuesIn(helpers()), helper_name);

using NumberOf = HelperTest;

TEST_P(NumberOf, a_column_is_what_atoi_reads_in_its_text) {
    constexpr struct {
        const char *query;
        const char *text;
    } columns[] = {
        {"select 42;", "42"},
        {"select -7;", "-7"},
        {"select 2147483647;", "2147483647"},
        {"select -2147483648;", "-2147483648"},
        {"select 2147483648;", "2147483648"},
        {"select 9999999999;", "9999999999"},
        {"select -9999999999;", "-9999999999"},
        {"select '4294967297';", "4294967297"},
        {"select '99999999999999999999';", "99999999999999999999"},
        {"select 3.7;", "3.7"},
        {"select 1e10;", "10000000000.0"},
        {"select 1e300;", "1.0e+300"},
        {"select '12abc';", "12abc"},
        {"select '  9';", "  9"},
        {"select 'abc';", "abc"},
        {"select '';", ""},
        {"select x'3432';", "42"},
        {"select x'';", ""},
    };
    for (const auto &column : columns) {
        const int expected = std::atoi(column.text);  // NOLINT(cert-err34-c)
        EXPECT_EQ(call(column.query), (Outcome{expected, ""})) << column.query;
    }
}

INSTANTIATE_TEST_SUITE_P(, NumberOf, ::testing::ValuesIn(helpers_that([](const Helper &helper) {
                             return helper.delivers == Delivers::number;
                         })),
                         helper_name);

using TextOf = HelperTest;

TEST_P(TextOf, a_column_arrives_whole) {
    EXPECT_EQ(call("select printf('%.*c', 3000, 'x');"), (Outcome{0, std::string(3000, 'x')}));
}

TEST_P(TextOf, an_empty_column_is_an_empty_text) {
    EXPECT_EQ(call("select '';"), (Outcome{0, ""}));
}

INSTANTIATE_TEST_SUITE_P(, TextOf, ::testing::ValuesIn(helpers_that([](const Helper &helper) {
                             return helper.delivers == Delivers::text;
                         })),
                         helper_name);

TEST(DB_EXEC_SQL_CHAR_LONG, reads_as_strtoul_does) {
    for (const char *const text : {"42", "12abc", "-1", "  9", "99999999999999999999", "3.7", "0x10", ""}) {
        const std::string query = "select '" + std::string(text) + "';";
        EXPECT_EQ(helper("DB_EXEC_SQL_CHAR_LONG").call(nullptr, query.c_str()),
                  (Outcome{0, std::to_string(std::strtoul(text, nullptr, 10))}))
            << query;
    }
}

TEST(GET_DB_SQL_INT_COUNT, a_sum_beyond_the_range_of_an_int_wraps) {
    EXPECT_EQ(helper("GET_DB_SQL_INT_COUNT").call(nullptr, "values(2147483647,0),(0,1);"),
              (Outcome{-2147483648LL, ""}));
}

}  // namespace
