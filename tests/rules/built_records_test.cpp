// Rows and the records that the list builders make of them.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "rules/golden/samples.h"
#include "support/database.h"
#include "support/record.h"
#include "support/streams.h"

namespace {

using golden::Built;
using golden::Row;
using golden::Table;
using support::difference;

class BuiltRecord : public testing::TestWithParam<Row> {};

TEST_P(BuiltRecord, holds_the_row_and_nothing_else) {
    const Table &table = GetParam().table;
    GetParam().built.prepare();
    std::string list(table.list_size, '\x5a');
    const auto streams = support::streams_of([&] { EXPECT_EQ(table.build(list.data(), table.list_query.c_str()), 0); });
    EXPECT_EQ(streams.output + streams.error, "");
    EXPECT_EQ(difference(support::list_of(GetParam().built.record, 1, table.list_size), list), "");
}

INSTANTIATE_TEST_SUITE_P(, BuiltRecord, testing::ValuesIn(golden::rows()));

/// A lookup reads a time group as the builder of time groups does.
class FoundTimeGroup : public testing::TestWithParam<Built> {};

TEST_P(FoundTimeGroup, holds_the_row_and_nothing_else) {
    const support::Database database;
    database.execute(GetParam().rows);
    std::string group(380, '\x5a');
    GetTimeControlById(database.handle(), static_cast<int>(support::word(GetParam().record, 0)),
                       golden::Pointer(group.data()));
    EXPECT_EQ(difference(GetParam().record, group), "");
}

INSTANTIATE_TEST_SUITE_P(, FoundTimeGroup, testing::ValuesIn(golden::built(golden::table("user_timegroup"))));

}  // namespace
