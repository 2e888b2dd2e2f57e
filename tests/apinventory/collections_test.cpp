// The two collections that stay empty, and firmware upgrades.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "apinventory/tables.h"
#include "core/holdings.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

struct Kind : support::Named {
    int (*collect)(uint32_t *collection) = nullptr;
    std::string query{};
    tables::Table table = tables::devices;
};

std::vector<Kind> kinds() {
    Kind devices{{"DB_GetDevSNCollection"}};
    devices.collect = DB_GetDevSNCollection;
    devices.query = "select Dev_Sn from DevInfo order by Dev_IPSUM ;";
    Kind groups{{"DB_GetWlanGroupIDCollection"}};
    groups.collect = DB_GetWlanGroupIDCollection;
    groups.query = "select WlanGroup_Id from WlanGroupInfo;";
    groups.table = tables::wlan_groups;
    return {devices, groups};
}

class Collection : public testing::TestWithParam<Kind> {
protected:
    Collection() {
        for (const char *key : {"1", "2"}) {
            insert(GetParam().table, {{0, key}});
        }
    }

    /// Collects, and expects what a collection of two words that were 9 holds then.
    static void expect(int result, uint32_t count) {
        uint32_t collection[] = {9, 9};
        EXPECT_EQ(GetParam().collect(collection), result);
        EXPECT_EQ(collection[0], count);
        EXPECT_EQ(collection[1], 9U);
    }
};

TEST_P(Collection, is_empty_although_the_table_has_rows) {
    expect(0, 0);
}

TEST_P(Collection, executes_its_query_under_the_lock) {
    Recorder recorder;
    Holdings holdings(recorder);
    expect(0, 0);
    EXPECT_EQ(recorder.calls(), (Lines{
                                    "open lock file",
                                    "draw",
                                    "lock",
                                    "sqlite3_open /etc/config/systemconf/database/myrouter.db",
                                    "sqlite3_exec " + GetParam().query,
                                    "sqlite3_free",
                                    "sqlite3_close",
                                    "unlock",
                                    "close lock file",
                                }));
    EXPECT_EQ(holdings.changes(),
              (Lines{"sqlite3_open /etc/config/systemconf/database/myrouter.db: lock", "close lock file: nothing"}));
}

TEST_P(Collection, sleeps_grow_by_five_through_open_and_execution) {
    for (const auto &[drawn, first] : {std::pair(0, 56U), {2147483647, 155U}}) {
        Recorder recorder;
        recorder.answer("draw", {drawn});
        recorder.answer("sqlite3_open", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
        recorder.answer("sqlite3_exec", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
        expect(0, 0);
        EXPECT_EQ(recorder.sleeps(),
                  (std::vector<unsigned>{first, first + 5, first + 10, first + 15, first + 20, first + 25}));
    }
}

TEST_P(Collection, without_the_lock_file_is_left_as_it_was) {
    ASSERT_EQ(std::remove(support::lock_file), 0);
    EXPECT_EQ(support::streams_of([] { expect(-1, 9); }).error, support::cannot_open_lock_file);
}

TEST_P(Collection, of_a_database_that_cannot_be_opened_is_left_as_it_was) {
    tables::make_unopenable();
    EXPECT_EQ(support::streams_of([] { expect(-1, 9); }).error,
              "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n");
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST_P(Collection, of_a_table_that_is_missing_is_left_as_it_was) {
    drop(GetParam().table);
    EXPECT_EQ(support::streams_of([] { expect(-1, 9); }).output,
              std::string("cannot exec sql cmdline, Error: no such table: ") + GetParam().table.name + "\n");
    EXPECT_TRUE(support::lock_file_is_free());
}

INSTANTIATE_TEST_SUITE_P(All, Collection, testing::ValuesIn(kinds()), testing::PrintToStringParamName());

/// An upgrade whose firmware has a name, which may fill its member.
ApDevUpgradeInfo upgrade(const std::string &name) {
    ApDevUpgradeInfo info{};
    std::memcpy(info.Dev_SwName, name.data(), name.size());
    return info;
}

/// The statements that the deletion of an upgrade runs, but for the settings before it.
Lines deletions(const ApDevUpgradeInfo *info) {
    const Recorder recorder;
    support::streams_of([&] { EXPECT_EQ(DeleteApDevUpgradeInfo(info), 0); });
    return recorder.calls({"sqlite3_exec delete", "sqlite3_exec update", "sqlite3_prepare_v2", "system"});
}

TEST(DeleteApDevUpgradeInfo, deletes_the_entries_of_a_firmware) {
    support::execute(
        "insert into DevUpgradeInfo(Dev_SwName) values('a'); insert into DevUpgradeInfo(Dev_SwName) values('b');"
        "insert into DevUpgradeInfo(Dev_SwName) values('a');");
    const ApDevUpgradeInfo info = upgrade("a");
    EXPECT_EQ(deletions(&info), Lines{"sqlite3_exec delete from DevUpgradeInfo where Dev_SwName='a';"});
    EXPECT_EQ(support::Database().rows("select Dev_SwName from DevUpgradeInfo;"), Lines{"b"});
}

TEST(DeleteApDevUpgradeInfo, does_nothing_without_a_record_or_a_name) {
    support::execute("insert into DevUpgradeInfo(Dev_SwName) values('');");
    const ApDevUpgradeInfo nameless = upgrade("");
    const Recorder recorder;
    EXPECT_EQ(DeleteApDevUpgradeInfo(nullptr), 0);
    EXPECT_EQ(DeleteApDevUpgradeInfo(&nameless), 0);
    EXPECT_EQ(recorder.calls(), Lines());
    EXPECT_EQ(support::value("select count(*) from DevUpgradeInfo;"), "1");
}

TEST(DeleteApDevUpgradeInfo, reads_a_name_that_fills_its_member) {
    const ApDevUpgradeInfo info = upgrade(std::string(200, 'n'));
    EXPECT_EQ(deletions(&info),
              Lines{"sqlite3_exec delete from DevUpgradeInfo where Dev_SwName='" + std::string(200, 'n') + "';"});
}

TEST(DeleteApDevUpgradeInfo, puts_the_name_into_the_statement_as_given_and_gives_0_when_it_fails) {
    const ApDevUpgradeInfo info = upgrade("it's");
    EXPECT_EQ(deletions(&info),
              Lines{"sqlite3_exec delete from DevUpgradeInfo where Dev_SwName='" + support::as_value("it's") + "';"});
}

TEST(GetApDevUpgradeList, does_nothing) {
    support::execute("insert into DevUpgradeInfo(Dev_SwName) values('a');");
    const std::string before(sizeof(ApDevUpgradeList), '\x5a');
    const auto list = std::make_unique<ApDevUpgradeList>();
    std::memcpy(static_cast<void *>(list.get()), before.data(), before.size());
    const Recorder recorder;
    GetApDevUpgradeList(list.get());
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(list.get()), sizeof(ApDevUpgradeList)), before);
    EXPECT_EQ(recorder.calls(), Lines());
}

}  // namespace
