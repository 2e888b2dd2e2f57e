// How columns are read: as text, also those that hold an integer, unless the profile reads integers as such. Callers
// see the same numbers.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "profiles/samples.h"
#include "routerdb.h"
#include "support/profile.h"
#include "support/streams.h"

namespace {

using Lines = std::vector<std::string>;

/// Calls that look at a column as something else than text, while it is not null.
Lines *noted = nullptr;

void note(const char *call) {
    if (noted != nullptr) {
        noted->emplace_back(call);
    }
}

}  // namespace

#define PASS_ON(function, ...) \
    note(#function);           \
    return reinterpret_cast<decltype(&(function))>(dlsym(RTLD_NEXT, #function))(__VA_ARGS__)

extern "C" {

int sqlite3_column_type(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_type, statement, column);
}

int sqlite3_column_int(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_int, statement, column);
}

sqlite3_int64 sqlite3_column_int64(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_int64, statement, column);
}

double sqlite3_column_double(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_double, statement, column);
}

int sqlite3_column_bytes(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_bytes, statement, column);
}

const void *sqlite3_column_blob(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_blob, statement, column);
}

sqlite3_value *sqlite3_column_value(sqlite3_stmt *statement, int column) {
    PASS_ON(sqlite3_column_value, statement, column);
}

}  // extern "C"

namespace {

using support::build_profile;

Lines calls_of(const std::function<void()> &action) {
    Lines calls;
    noted = &calls;
    support::streams_of(action);
    noted = nullptr;
    return calls;
}

class ColumnsOf : public testing::TestWithParam<samples::Call> {};

TEST_P(ColumnsOf, are_read_as_text_alone_unless_the_profile_reads_integers) {
    samples::fill_databases();
    const Lines calls = calls_of([] { GetParam().make(); });
    EXPECT_EQ(build_profile.reads_integers ? Lines() : calls, Lines());
}

INSTANTIATE_TEST_SUITE_P(All, ColumnsOf, testing::ValuesIn(samples::calls()), testing::PrintToStringParamName());

/// A value as SQL has it, and its text.
struct Value : support::Named {
    const char *text;
};

const Value values[] = {
    {"42", "42"},
    {"-7", "-7"},
    {"0", "0"},
    {"2147483647", "2147483647"},
    {"-2147483648", "-2147483648"},
    {"2147483648", "2147483648"},
    {"-2147483649", "-2147483649"},
    {"4294967297", "4294967297"},
    {"9223372036854775807", "9223372036854775807"},
    {"9223372036854775808", "9.22337203685478e+18"},
    {"'99999999999999999999'", "99999999999999999999"},
    {"1e3", "1000.0"},
    {"-1.9", "-1.9"},
    {"1e300", "1.0e+300"},
    {"'12abc'", "12abc"},
    {"' 9'", " 9"},
    {"'0x10'", "0x10"},
    {"''", ""},
    {"NULL", ""},
    {"x'3432'", "42"},
    {"x'343200'", "42"},
    {"x''", ""},
};

int number_in_a_record(const std::string &value) {
    static IpGroupItemList list;
    GetIpGroupItemListInServer(&list, ("select " + value + " as id;").c_str());
    return list.items[0].id;
}

class Column : public testing::TestWithParam<Value> {
protected:
    /// What atoi reads in the text.
    const int expected_ = std::atoi(GetParam().text);  // NOLINT(cert-err34-c)
};

TEST_P(Column, is_the_number_in_its_text) {
    const std::string query = "select " + GetParam().name + ";";
    EXPECT_EQ(GET_DB_SQL_INT_COUNT(query.c_str()), expected_);
    EXPECT_EQ(GET_DB_SQL_INT_COUNT_ROUTE(query.c_str()), expected_);
    EXPECT_EQ(number_in_a_record(GetParam().name), expected_);
}

TEST_P(Column, is_read_as_text_unless_the_profile_reads_integers) {
    const Lines calls = calls_of([] {
        GET_DB_SQL_INT_COUNT(("select " + GetParam().name + ";").c_str());
        number_in_a_record(GetParam().name);
    });
    EXPECT_EQ(calls.empty(), !build_profile.reads_integers);
}

INSTANTIATE_TEST_SUITE_P(All, Column, testing::ValuesIn(values));

}  // namespace
