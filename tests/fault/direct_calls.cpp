#include "fault/direct_calls.h"

#include "core/holdings.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/streams.h"

namespace {

constexpr char query[] = "select a, b from numbers order by a;";
constexpr char insert[] = "insert into numbers values(1, 2);";

/// A list builder, as a helper whose result has no meaning and whose destination is the number of records.
Outcome build_list(sqlite3 * /*db*/, const char *sql) {
    static TimeGroupItemList list;
    list.count = 1000;
    GetTimeGroupItemListInServer(&list, sql);
    return {0, std::to_string(list.count)};
}

constexpr bool abandons = !support::build_profile.closes_its_own;
constexpr bool closes = false;
const Outcome failure{-1, ""};
const Outcome zero{0, ""};
const std::vector<Outcome> never;

}  // namespace

const std::vector<DirectCall> &direct_calls() {
    static const std::vector<DirectCall> calls{
        {helper("DbSqlExec"),
         insert,
         zero,
         {failure},
         {failure},
         {failure},
         never,
         never,
         {failure, failure},
         abandons},
        {helper("DB_EXEC_SQL_CHAR"),
         insert,
         zero,
         {failure},
         {failure},
         {zero, zero, zero, failure},
         never,
         never,
         {failure, failure},
         closes},
        {helper("DB_EXEC_SQL_CHAR_INT"),
         query,
         {0, "1002"},
         never,
         {{-1, "1000"}},
         never,
         {{0, "1000"}},
         {{0, "1000"}, {0, "1001"}, {0, "1002"}},
         {{-1, "1000"}},
         abandons},
        {helper("DB_EXEC_SQL_CHAR_LONG"),
         query,
         {0, "8"},
         never,
         {{-1, "1000"}},
         never,
         {{0, "1000"}},
         {{0, "1000"}, {0, "5"}, {0, "8"}},
         {{-1, "1000"}},
         closes,
         {{0, "0"}}},
        {helper("DB_EXEC_SQL_CHAR_CHAR"),
         query,
         {0, "7"},
         never,
         {{-1, "before"}},
         never,
         {{0, "before"}},
         {{0, "before"}, {0, "5"}, {0, "7"}},
         {{-1, "before"}},
         closes},
        {helper("GET_DB_SQL_INT_COUNT"),
         query,
         {13, ""},
         {failure},
         {failure},
         never,
         {failure},
         {zero, {5, ""}, {13, ""}},
         {failure},
         closes},
        {helper("GET_DB_SQL_INT"),
         query,
         {2, ""},
         {failure},
         {failure},
         never,
         {failure},
         {zero, {1, ""}, {2, ""}},
         {failure},
         closes},
        {helper("GET_DB_SQL_INT_COUNT_ROUTE"),
         query,
         {5, ""},
         never,
         {failure},
         never,
         {failure},
         {zero},
         {failure},
         abandons},
        {helper("GET_DB_SQL_INT_COUNT_DPI"),
         query,
         {5, ""},
         never,
         {failure},
         never,
         {failure},
         {zero},
         {failure},
         abandons},
        {helper("GET_DB_SQLITE_SQL_INT"),
         query,
         {5, ""},
         never,
         {failure},
         never,
         {failure},
         {zero},
         {failure},
         abandons},
        {helper("GET_DB_SQLITE_SQL_STR_N"),
         query,
         {0, "5"},
         never,
         never,
         never,
         {{0xffffffffLL, "before"}},
         {{0, "before"}},
         never,
         closes,
         {{0, "0"}}},
        {{"GetTimeGroupItemListInServer", build_list},
         query,
         {0, "2"},
         {{0, "0"}},
         {{0, "0"}},
         never,
         {{0, "0"}},
         {{0, "0"}, {0, "1"}, {0, "2"}},
         {{0, "0"}},
         closes},
    };
    return calls;
}

void make_databases_small() {
    for (const char *const path : {support::main_database, support::catalogue_database, support::factory_database}) {
        support::write_file(path, "");
        support::Database(path).execute("create table numbers(a, b); insert into numbers values(5, 6), (7, 8);");
    }
}

DirectRoad::DirectRoad() {
    make_databases_small();
    open_standard_input();
    make_call([] {});  // so that what SQLite keeps for good is there
    open_standard_input();
    descriptors_ = support::open_descriptors();
    memory_ = sqlite3_memory_used();
}

Outcome DirectRoad::make_call(const std::function<void()> &arm) {
    const CallersConnection connection = open_callers_connection();
    support::Streams streams;
    arm();
    return GetParam().call(connection.get(), GetParam().sql);
}

void DirectRoad::expect_nothing_left() {
    expect_no_lock_or_descriptor_left();
    EXPECT_EQ(sqlite3_memory_used(), memory_);
    memory_ = sqlite3_memory_used();
}

void DirectRoad::expect_connections_left() {
    expect_no_lock_or_descriptor_left();
    EXPECT_GT(sqlite3_memory_used(), memory_);
    memory_ = sqlite3_memory_used();
}

void DirectRoad::expect_no_lock_or_descriptor_left() const {
    open_standard_input();
    EXPECT_EQ(support::open_descriptors(), descriptors_);
    EXPECT_EQ(support::locks(), "");
    EXPECT_TRUE(mutex_is_free());
}
