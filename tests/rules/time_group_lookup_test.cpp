// The lookup of a time group: by itself, and for each rule of a list.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "routerdb.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::difference;
using support::Recorder;

using Lines = std::vector<std::string>;

constexpr char three_groups[] =
    "insert into user_timegroup values(2,'mornings',0,0,0,0,0,0,0,'','','');"
    "insert into user_timegroup values(3,'evenings',0,0,0,0,0,0,1,'18:00','23:59','after work');"
    "insert into user_timegroup values(4,'nights',0,0,0,0,0,0,0,'','','');";

/// Bytes of group 3, or of none.
std::string found(int id, const support::Database &database) {
    TimeGroupItem group;
    memset(&group, 0x5a, sizeof(group));
    GetTimeControlById(database.handle(), id, &group);
    return {reinterpret_cast<const char *>(&group), sizeof(group)};
}

std::string evenings() {
    return support::Record(380)
        .number(0, 3)
        .text(4, "evenings")
        .number(180, 1)
        .text(184, "18:00")
        .text(204, "23:59")
        .text(224, "after work")
        .bytes();
}

TEST(GetTimeControlById, reads_one_group_on_the_callers_connection) {
    const support::Database database;
    database.execute(three_groups);
    const Recorder recorder;
    EXPECT_EQ(difference(evenings(), found(3, database)), "");
    EXPECT_EQ(recorder.calls(), (Lines{"draw", "sqlite3_prepare_v2 select * from user_timegroup where id='3';",
                                       "sqlite3_step", "sqlite3_finalize"}));
}

TEST(GetTimeControlById, an_unknown_id_leaves_the_record_zero) {
    const support::Database database;
    database.execute(three_groups);
    for (const int id : {5, 0, -1, -2147483647 - 1, 2147483647}) {
        const Recorder recorder;
        const auto streams =
            support::streams_of([&] { EXPECT_EQ(difference(std::string(380, '\0'), found(id, database)), "") << id; });
        EXPECT_EQ(streams.output + streams.error, "");
        EXPECT_EQ(recorder.calls({"sqlite3"}),
                  (Lines{"sqlite3_prepare_v2 select * from user_timegroup where id='" + std::to_string(id) + "';",
                         "sqlite3_step", "sqlite3_finalize"}));
    }
}

TEST(GetTimeControlById, without_the_table_says_so_and_leaves_the_record_zero) {
    const support::Database database;
    database.execute("drop table user_timegroup;");
    const auto streams =
        support::streams_of([&] { EXPECT_EQ(difference(std::string(380, '\0'), found(3, database)), ""); });
    EXPECT_EQ(streams.output, "cannot prepare sql cmdline, Error: no such table: user_timegroup\n");
    EXPECT_EQ(streams.error, "");
}

TEST(GetTimeControlById, tells_why_nothing_was_read) {
    const support::Database database;
    database.execute(three_groups);
    support::expect_errno(support::found_errno, [&] { found(3, database); });
    support::expect_errno(support::found_errno, [&] { found(5, database); });
    database.execute("drop table user_timegroup;");
    support::expect_errno(EIO, [&] { found(3, database); });
}

TEST(GetTimeControlById, sleeps_grow_by_five_through_prepare_and_first_step) {
    const support::Database database;
    database.execute(three_groups);
    Recorder recorder;
    recorder.answer("draw", {2147483647});
    recorder.answer("sqlite3_prepare_v2", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    EXPECT_EQ(difference(evenings(), found(3, database)), "");
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{155, 160, 165, 170, 175, 180}));
}

/// Two rules that reference group 3, and one that has a time of its own.
constexpr char rules[] =
    "insert into filter_url values(1,'','',2,3,0,0,0,0,0,0,0,'','',1,'');"
    "insert into filter_url values(2,'','',1,3,0,0,0,0,0,0,0,'','',1,'');"
    "insert into filter_url values(3,'','',2,3,0,0,0,0,0,0,0,'','',1,'');";

int build_rules() {
    const auto list = std::make_unique<UrlFilterItemList>();
    GetUrlFilterItemListInServer(list.get(), "select * from filter_url order by Id;");
    return static_cast<int>(list->count);
}

Lines calls_of_building() {
    const Recorder recorder;
    EXPECT_EQ(build_rules(), 3);
    return recorder.calls({"draw", "open lock", "lock", "unlock", "close lock", "sqlite3_open", "sqlite3_prepare",
                           "sqlite3_step", "sqlite3_finalize", "sqlite3_close"});
}

TEST(UrlFilterBuilder, looks_groups_up_on_its_own_connection_one_by_one_or_each_once) {
    support::execute(std::string(three_groups) + rules);
    const Lines drawing{"draw"};
    const Lines list{"open lock file", "lock", "sqlite3_open /etc/config/systemconf/database/myrouter.db",
                     "sqlite3_prepare_v2 select * from filter_url order by Id;", "sqlite3_step"};
    const Lines lookup{"sqlite3_prepare_v2 select * from user_timegroup where id='3';", "sqlite3_step",
                       "sqlite3_finalize"};
    const Lines bound_lookup{"sqlite3_prepare_v2 select * from user_timegroup where id=?1;", "sqlite3_step"};
    const Lines steps{"sqlite3_step", "sqlite3_step"};
    const Lines end{"sqlite3_step", "sqlite3_finalize", "sqlite3_close", "unlock", "close lock file"};
    const std::vector<Lines> one_by_one{drawing, list, drawing, lookup, steps, drawing, lookup, end};
    const std::vector<Lines> each_once{
        drawing,
        list,
        drawing,
        bound_lookup,
        steps,
        {"sqlite3_step"},
        {"sqlite3_finalize", "sqlite3_finalize", "sqlite3_close", "unlock", "close lock file"}};
    static_assert(support::build_profile.remembers_lookups == support::build_profile.binds_ids);
    Lines expected;
    for (const Lines &more : support::build_profile.binds_ids ? each_once : one_by_one) {
        expected.insert(expected.end(), more.begin(), more.end());
    }
    EXPECT_EQ(calls_of_building(), expected);
}

TEST(UrlFilterBuilder, a_lookup_that_cannot_be_prepared_says_so_and_costs_the_group_only) {
    support::execute(std::string(rules) + "drop table user_timegroup;");
    const auto list = std::make_unique<UrlFilterItemList>();
    const auto streams = support::streams_of(
        [&] { GetUrlFilterItemListInServer(list.get(), "select * from filter_url where id='1';"); });
    EXPECT_EQ(streams.output, "cannot prepare sql cmdline, Error: no such table: user_timegroup\n");
    EXPECT_EQ(streams.error, "");
    EXPECT_EQ(list->count, 1U);
    EXPECT_EQ(list->items[0].time_valid, 1);
    EXPECT_EQ(list->items[0].timegroup_id, 3);
    EXPECT_STREQ(list->items[0].timegroup_name, "");
}

}  // namespace
