// The zero-configuration groups as JSON.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>

#include "core/holdings.h"
#include "json/faults.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/failing_readings.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using printed::Texts;
using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char opening[] = R"({"WlanGroupList":{"data":[)";
constexpr char closing[] =
    R"({"WlanGroup_Id":"","WlanGroup_Name":"","WlanGroup_Wlan1_Ssid":"","WlanGroup_Wlan1_Security":"",)"
    R"("WlanGroup_Wlan1_AuthMode":"","WlanGroup_Wlan1_SecurityCipher":"","WlanGroup_Wlan1_Wep_Value":"",)"
    R"("WlanGroup_Wlan1_Psk_Value":"","WlanGroup_Wlan_Channel":"","WlanGroup_Wlan5_Ssid":"",)"
    R"("WlanGroup_Wlan5_Security":"","WlanGroup_Wlan5_AuthMode":"","WlanGroup_Wlan5_SecurityCipher":"",)"
    R"("WlanGroup_Wlan5_Wep_Value":"","WlanGroup_Wlan5_Psk_Value":"","WlanGroup_Wlan_Channel_sec":"",)"
    R"("Wlan_txpower":"","Wlan_txpower_sec":"","TimeRebootEnable":"","RebootTime":""}],"count":")";
constexpr char no_groups[] = R"({"WlanGroupList":{"count":"0"}})";

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";
constexpr const char *first_query = build_profile.names_needed_columns
                                        ? "sqlite3_prepare_v2 select WlanGroup_Id from WlanZeroCfgGroupInfo;"
                                        : "sqlite3_prepare_v2 select * from WlanZeroCfgGroupInfo;";
constexpr char list_query[] =
    "sqlite3_prepare_v2 select WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan1_Ssid,WlanGroup_Wlan1_Security,"
    "WlanGroup_Wlan1_AuthMode,WlanGroup_Wlan1_SecurityCipher,WlanGroup_Wlan1_Wep_Value,WlanGroup_Wlan1_Psk_Value,"
    "WlanGroup_Wlan5_Ssid,WlanGroup_Wlan5_Security,WlanGroup_Wlan5_AuthMode,WlanGroup_Wlan5_SecurityCipher,"
    "WlanGroup_Wlan5_Wep_Value,WlanGroup_Wlan5_Psk_Value,WlanGroup_Wlan_Channel,WlanGroup_Wlan_Channel_sec,"
    "WlanGroup_Dev_RebootTime_Enable,WlanGroup_Dev_RebootTime,WlanGroup_Wlan_Txpower,WlanGroup_Wlan_Txpower_sec "
    "from WlanZeroCfgGroupInfo;";

/// Adds a group; what `columns` does not name is NULL.
void add(int number, const std::string &columns) {
    const std::string id = std::to_string(number);
    support::execute("insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(" + id +
                     "); update WlanZeroCfgGroupInfo set " + columns + " where WlanGroup_Id=" + id + ";");
}

/// Adds a group whose other columns have one text.
void add_uniform(int number, const std::string &text) {
    std::string values = std::to_string(number);
    for (int column = 1; column < 126; ++column) {
        values += ",'" + text + "'";
    }
    support::execute("insert into WlanZeroCfgGroupInfo values(" + values + ");");
}

std::string print(int result = 0) {
    return printed::by([result] { EXPECT_EQ(GetWlanZeroCfgGroupList(), result); });
}

TEST(ZeroConfigList, without_groups_is_nothing_but_a_count_of_zero) {
    const Recorder recorder;
    printed::expect_complete(print(), R"({"WlanGroupList":{"count":"0"}})");
    EXPECT_EQ(recorder.calls({"sqlite3_open"}), Lines{open_call});
}

TEST(ZeroConfigList, shows_a_group_and_the_closing_element) {
    add(4,
        "WlanGroup_Name='大厅',WlanGroup_Wlan1_Ssid='s1',WlanGroup_Wlan1_Security='sec1',"
        "WlanGroup_Wlan1_AuthMode='auth1',WlanGroup_Wlan1_SecurityCipher='ciph1',WlanGroup_Wlan1_Wep_Value='wep1',"
        "WlanGroup_Wlan1_Psk_Value='psk1',WlanGroup_Wlan5_Ssid='s5',WlanGroup_Wlan5_Security='sec5',"
        "WlanGroup_Wlan5_AuthMode='auth5',WlanGroup_Wlan5_SecurityCipher='ciph5',WlanGroup_Wlan5_Wep_Value='wep5',"
        "WlanGroup_Wlan5_Psk_Value='psk5',WlanGroup_Wlan_Channel='6',WlanGroup_Wlan_Channel_sec='149',"
        "WlanGroup_Dev_RebootTime_Enable='1',WlanGroup_Dev_RebootTime='03:30',WlanGroup_Wlan_Txpower='80',"
        "WlanGroup_Wlan_Txpower_sec='90'");
    printed::expect_complete(
        print(),
        opening +
            std::string(
                R"({"WlanGroup_Id":"4","WlanGroup_Name":"大厅","WlanGroup_Wlan1_Ssid":"s1",)"
                R"("WlanGroup_Wlan1_Security":"sec1","WlanGroup_Wlan1_AuthMode":"auth1",)"
                R"("WlanGroup_Wlan1_SecurityCipher":"ciph1","WlanGroup_Wlan1_Wep_Value":"wep1",)"
                R"("WlanGroup_Wlan1_Psk_Value":"psk1","WlanGroup_Wlan_Channel":"6","WlanGroup_Wlan5_Ssid":"s5",)"
                R"("WlanGroup_Wlan5_Security":"sec5","WlanGroup_Wlan5_AuthMode":"auth5",)"
                R"("WlanGroup_Wlan5_SecurityCipher":"ciph5","WlanGroup_Wlan5_Wep_Value":"wep5",)"
                R"("WlanGroup_Wlan5_Psk_Value":"psk5","WlanGroup_Wlan_Channel_sec":"149","Wlan_txpower":"80",)"
                R"("Wlan_txpower_sec":"90","TimeRebootEnable":"1","RebootTime":"03:30"},)") +
            closing + "1\"}}");
}

TEST(ZeroConfigList, shows_groups_in_the_order_of_the_table) {
    for (const int number : {5, 2, 0, 9}) {
        add(number, "WlanGroup_Name='n'");
    }
    const printed::List list = printed::parse(print(), "WlanGroupList");
    EXPECT_EQ(printed::values(list, "WlanGroup_Id"), (Lines{"5", "2", "0", "9"}));
    EXPECT_EQ(list.totals, (Texts{{"count", "4"}}));
}

TEST(ZeroConfigList, is_short_when_the_first_group_has_a_number_below_one) {
    for (const char *number : {"0", "-1", "NULL", "'x'"}) {
        support::execute("delete from WlanZeroCfgGroupInfo; insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(" +
                         std::string(number) + "); insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(3);");
        printed::expect_complete(print(), no_groups);
    }
}

TEST(ZeroConfigList, prints_null_columns_as_empty_texts) {
    support::execute("insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(1);");
    printed::List list = printed::parse(print(), "WlanGroupList");
    ASSERT_EQ(list.elements.size(), 2U);
    Texts expected = list.elements.back();
    expected["WlanGroup_Id"] = "1";
    EXPECT_EQ(list.elements.front(), expected);
}

TEST(ZeroConfigList, cuts_every_value_behind_99_bytes) {
    for (const std::size_t length : {98U, 99U, 100U, 500U}) {
        support::execute("delete from WlanZeroCfgGroupInfo;");
        add_uniform(1, std::string(length, 'x'));
        const printed::List list = printed::parse(print(), "WlanGroupList");
        const Texts &element = list.elements.front();
        EXPECT_EQ(element.size(), 20U);
        for (const auto &member : element) {
            if (member.first != "WlanGroup_Id") {
                EXPECT_EQ(member.second, std::string(length < 99 ? length : 99, 'x')) << member.first;
            }
        }
    }
}

TEST(ZeroConfigList, escapes_a_quote_as_the_profile_says) {
    add(1, "WlanGroup_Name='a\"b',WlanGroup_Wlan1_Psk_Value='back\\slash'");
    const std::string text = print();
    constexpr bool escapes = build_profile.escapes_json;
    EXPECT_EQ(printed::is_json(text), escapes);
    for (const char *member :
         {escapes ? R"("WlanGroup_Name":"a\"b",)" : R"("WlanGroup_Name":"a"b",)",
          escapes ? R"("WlanGroup_Wlan1_Psk_Value":"back\\slash",)" : R"("WlanGroup_Wlan1_Psk_Value":"back\slash",)"}) {
        EXPECT_NE(text.find(member), std::string::npos) << text;
    }
}

TEST(ZeroConfigList, is_printed_behind_what_the_caller_has_printed) {
    const std::string text = printed::by([] {
        std::printf("Content-Type: application/json\n\n");
        GetWlanZeroCfgGroupList();
        std::printf("\n");
    });
    EXPECT_EQ(text, "Content-Type: application/json\n\n" + std::string(no_groups) + "\n");
}

TEST(ZeroConfigList, looks_at_the_first_group_under_the_lock_and_reads_the_list_without) {
    add(1, "WlanGroup_Name='a'");
    add(2, "WlanGroup_Name='b'");
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    Holdings holdings(recorder);
    print();
    Lines first{"open lock file", "draw", "lock", open_call, first_query, "sqlite3_step", "sqlite3_finalize"};
    const Lines unlocked{"unlock", "close lock file", "draw"};
    const Lines list{list_query, "sqlite3_step", "sqlite3_step", "sqlite3_step", "sqlite3_finalize", "sqlite3_close"};
    const bool shares = build_profile.shares_connection;
    for (const Lines &more :
         {shares ? Lines{} : Lines{"sqlite3_close"}, unlocked, shares ? Lines{} : Lines{open_call}, list}) {
        first.insert(first.end(), more.begin(), more.end());
    }
    EXPECT_EQ(recorder.calls(), first);
    EXPECT_EQ(holdings.changes(), (Lines{std::string(open_call) + ": lock", "close lock file: nothing"}));
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(ZeroConfigList, shares_one_series_of_sleeps_through_open_prepare_and_first_step) {
    add(1, "WlanGroup_Name='a'");
    const std::string unlocked = print();
    Recorder recorder;
    recorder.answer("draw", {0, 2147483647});
    for (const char *function : {"sqlite3_open", "sqlite3_prepare_v2", "sqlite3_step"}) {
        recorder.answer(function, {Recorder::really, SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    EXPECT_EQ(print(), unlocked);
    EXPECT_EQ(recorder.sleeps(), build_profile.shares_connection
                                     ? (std::vector<unsigned>{155, 160, 165, 170, 175, 180})
                                     : (std::vector<unsigned>{155, 160, 165, 170, 175, 180, 185, 190, 195}));
}

TEST(ZeroConfigList, breaks_off_when_the_database_cannot_be_opened_for_it) {
    constexpr char message[] = "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";
    add(1, "WlanGroup_Name='a'");
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    if (build_profile.shares_connection) {  // it is opened when the table is gone from the shared one
        faults::before(recorder, list_query, 1, [] {
            support::execute("drop table WlanZeroCfgGroupInfo;");
            faults::make_unopenable(support::main_database);
        });
    } else {
        faults::before(recorder, open_call, 2, [] { faults::make_unopenable(support::main_database); });
    }
    int result = 0;
    const auto said = support::streams_of([&] { result = GetWlanZeroCfgGroupList(); });
    printed::expect_unfinished(said.output, R"({"WlanGroupList":{"data":[)");
    EXPECT_EQ(said.error, message);
    EXPECT_EQ(result, 72);  // the length of the message
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(ZeroConfigList, breaks_off_when_it_cannot_be_prepared) {
    add(1, "WlanGroup_Name='a'");
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    faults::before(recorder, list_query, 1, [] { support::execute("drop table WlanZeroCfgGroupInfo;"); });
    printed::expect_unfinished(print(), R"({"WlanGroupList":{"data":[)"
                                        "cannot prepare sql cmdline, Error: no such table: WlanZeroCfgGroupInfo\n");
    EXPECT_EQ(recorder.calls({"sqlite3_close"}).size(), 2U);
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(ZeroConfigList, is_short_when_the_first_group_cannot_be_read) {
    support::execute("drop table WlanZeroCfgGroupInfo;");
    printed::expect_unfinished(print(), "cannot exec sql cmdline, Error: (null)\n" + std::string(no_groups));
}

TEST(ZeroConfigList, is_short_without_a_lock_file) {
    add(1, "WlanGroup_Name='a'");
    ASSERT_EQ(unlink(support::lock_file), 0);
    const auto said = support::streams_of([] { EXPECT_EQ(GetWlanZeroCfgGroupList(), 0); });
    printed::expect_complete(said.output, no_groups);
    EXPECT_EQ(said.error, support::cannot_open_lock_file);
}

TEST(ZeroConfigList, closes_behind_the_rows_that_it_got) {
    for (const int number : {1, 2, 3}) {
        add(number, "WlanGroup_Name='a'");
    }
    Recorder recorder;
    recorder.answer("sqlite3_step", {Recorder::really, Recorder::really, SQLITE_BUSY});
    const printed::List list = printed::parse(print(), "WlanGroupList");
    EXPECT_EQ(printed::values(list, "WlanGroup_Id"), Lines{"1"});
    EXPECT_EQ(list.totals, (Texts{{"count", "1"}}));
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

TEST(ZeroConfigList, of_which_the_first_step_fails_is_the_closing_element_alone) {
    add(1, "WlanGroup_Name='a'");
    Recorder recorder;
    support::fail_beginning(recorder, "sqlite3_step", 2, SQLITE_CORRUPT);
    printed::expect_complete(print(), opening + std::string(closing) + "0\"}}");
}

}  // namespace
