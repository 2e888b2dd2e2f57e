// Saving zero-configuration groups: the number of a new one, and what is written.
#include <gtest/gtest.h>

#include <cstdio>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using places::Place;
using places::put;
using support::Recorder;
using tables::Row;
using tables::zero_config_groups;
using Lines = std::vector<std::string>;

// What is written of the sample.
constexpr char assignments[] =
    " WlanGroup_Name='c1', WlanGroup_Wlan1_Enable='c2', WlanGroup_Wlan1_Hide_Ssid='c3', WlanGroup_Wlan1_Ssid='c4',"
    " WlanGroup_Wlan1_VlanId='c5', WlanGroup_Wlan1_Security='c6', WlanGroup_Wlan1_Authmode='c7',"
    " WlanGroup_Wlan1_Securitycipher='c8',WlanGroup_Wlan1_Wep_Type='c9',WlanGroup_Wlan1_Wep_Value='c10',"
    "WlanGroup_Wlan1_Psk_Type='c11',WlanGroup_Wlan1_Psk_Value='c12', WlanGroup_Wlan2_Enable='c13',"
    " WlanGroup_Wlan2_Hide_Ssid='c14', WlanGroup_Wlan2_Ssid='c15', WlanGroup_Wlan2_VlanId='c16',"
    " WlanGroup_Wlan2_Security='c17', WlanGroup_Wlan2_Authmode='c18', WlanGroup_Wlan2_Securitycipher='c19',"
    "WlanGroup_Wlan2_Wep_Type='c20',WlanGroup_Wlan2_Wep_Value='c21',WlanGroup_Wlan2_Psk_Type='c22',"
    "WlanGroup_Wlan2_Psk_Value='c23', WlanGroup_Wlan3_Enable='c24', WlanGroup_Wlan3_Hide_Ssid='c25',"
    " WlanGroup_Wlan3_Ssid='c26', WlanGroup_Wlan3_VlanId='c27', WlanGroup_Wlan3_Security='c28',"
    " WlanGroup_Wlan3_Authmode='c29', WlanGroup_Wlan3_Securitycipher='c30',WlanGroup_Wlan3_Wep_Type='c31',"
    "WlanGroup_Wlan3_Wep_Value='c32',WlanGroup_Wlan3_Psk_Type='c33',WlanGroup_Wlan3_Psk_Value='c34',"
    " WlanGroup_Wlan4_Enable='c35', WlanGroup_Wlan4_Hide_Ssid='c36', WlanGroup_Wlan4_Ssid='c37',"
    " WlanGroup_Wlan4_VlanId='c38', WlanGroup_Wlan4_Security='c39', WlanGroup_Wlan4_Authmode='c40',"
    " WlanGroup_Wlan4_Securitycipher='c41',WlanGroup_Wlan4_Wep_Type='c42',WlanGroup_Wlan4_Wep_Value='c43',"
    "WlanGroup_Wlan4_Psk_Type='c44',WlanGroup_Wlan4_Psk_Value='c45', WlanGroup_Wlan5_Enable='c46',"
    " WlanGroup_Wlan5_Hide_Ssid='c47', WlanGroup_Wlan5_Ssid='c48', WlanGroup_Wlan5_VlanId='c49',"
    " WlanGroup_Wlan5_Security='c50', WlanGroup_Wlan5_Authmode='c51', WlanGroup_Wlan5_Securitycipher='c52',"
    "WlanGroup_Wlan5_Wep_Type='c53',WlanGroup_Wlan5_Wep_Value='c54',WlanGroup_Wlan5_Psk_Type='c55',"
    "WlanGroup_Wlan5_Psk_Value='c56', WlanGroup_Wlan6_Enable='c57', WlanGroup_Wlan6_Hide_Ssid='c58',"
    " WlanGroup_Wlan6_Ssid='c59', WlanGroup_Wlan6_VlanId='c60', WlanGroup_Wlan6_Security='c61',"
    " WlanGroup_Wlan6_Authmode='c62', WlanGroup_Wlan6_Securitycipher='c63',WlanGroup_Wlan6_Wep_Type='c64',"
    "WlanGroup_Wlan6_Wep_Value='c65',WlanGroup_Wlan6_Psk_Type='c66',WlanGroup_Wlan6_Psk_Value='c67',"
    " WlanGroup_Wlan7_Enable='c68', WlanGroup_Wlan7_Hide_Ssid='c69', WlanGroup_Wlan7_Ssid='c70',"
    " WlanGroup_Wlan7_VlanId='c71', WlanGroup_Wlan7_Security='c72', WlanGroup_Wlan7_Authmode='c73',"
    " WlanGroup_Wlan7_Securitycipher='c74',WlanGroup_Wlan7_Wep_Type='c75',WlanGroup_Wlan7_Wep_Value='c76',"
    "WlanGroup_Wlan7_Psk_Type='c77',WlanGroup_Wlan7_Psk_Value='c78', WlanGroup_Wlan8_Enable='c79',"
    " WlanGroup_Wlan8_Hide_Ssid='c80', WlanGroup_Wlan8_Ssid='c81', WlanGroup_Wlan8_VlanId='c82',"
    " WlanGroup_Wlan8_Security='c83', WlanGroup_Wlan8_Authmode='c84', WlanGroup_Wlan8_Securitycipher='c85',"
    "WlanGroup_Wlan8_Wep_Type='c86',WlanGroup_Wlan8_Wep_Value='c87',WlanGroup_Wlan8_Psk_Type='c88',"
    "WlanGroup_Wlan8_Psk_Value='c89', WlanGroup_Wlan_Channel='c90', WlanGroup_Wlan_Isolate='c91',"
    " WlanGroup_Wlan_Rate='c92', WlanGroup_Wlan_Radius_ServerIP='c93', WlanGroup_Wlan_Radius_ServerPort='c94',"
    " WlanGroup_Wlan_Radius_Sharekey='c95', WlanGroup_Wlan_Mode='c96', WlanGroup_Wlan_Bw='c97',"
    " WlanGroup_Wlan_Ampdu='c98', WlanGroup_Wlan_Beacon_Interval='c99', WlanGroup_Wlan_Rts='c100',"
    " WlanGroup_Wlan_Txpower='c124', WlanGroup_Wlan_Cts='c101', WlanGroup_Wlan_ShortGI='c102', "
    " WlanGroup_Wlan_RevOption='c103',  WlanGroup_Wlan_MaxStaNum='c105',  WlanGroup_Wlan_CoverageThreshold='c104', "
    " WlanGroup_Wlan_Channel_sec='c106', WlanGroup_Wlan_Isolate_sec='c107', WlanGroup_Wlan_Rate_sec='c108',"
    " WlanGroup_Wlan_Mode_sec='c112', WlanGroup_Wlan_Bw_sec='c113', WlanGroup_Wlan_Ampdu_sec='c114',"
    " WlanGroup_Wlan_Beacon_Interval_sec='c115', WlanGroup_Wlan_Rts_sec='c116', WlanGroup_Wlan_Txpower_sec='c125',"
    " WlanGroup_Wlan_Cts_sec='c117', WlanGroup_Wlan_ShortGI_sec='c118',  WlanGroup_Wlan_RevOption_sec='c119', "
    " WlanGroup_Wlan_MaxStaNum_sec='c121',  WlanGroup_Dev_RebootTime_Enable='c122', "
    " WlanGroup_Dev_RebootTime='c123',  WlanGroup_Wlan_CoverageThreshold_sec='c120' ";

constexpr const char *first_number = support::build_profile.names_needed_columns
                                         ? "sqlite3_prepare_v2 select WlanGroup_Id from WlanZeroCfgGroupInfo;"
                                         : "sqlite3_prepare_v2 select * from WlanZeroCfgGroupInfo;";
constexpr char highest_number[] = "sqlite3_prepare_v2 select MAX(WlanGroup_Id) from WlanZeroCfgGroupInfo ;";

/// A group whose texts are "c" and the number of their columns.
DevInfo sample_group() {
    DevInfo group = record_of(zero_config_groups, numbered_row(zero_config_groups, "99"));  // a number that is not read
    put(group, "radius_server_ip", "c93");
    put(group, "radius_server_port", "c94");
    put(group, "radius_shared_key", "c95");
    return group;
}

std::string update_of(const std::string &number) {
    return std::string("update WlanZeroCfgGroupInfo set ") + assignments + "  where WlanGroup_Id='" + number + "' ";
}

std::string insertion_of(const std::string &number) {
    return "insert into WlanZeroCfgGroupInfo (WlanGroup_Id,WlanGroup_Name) values('" + number + "','c1') ;";
}

/// The row of the sample.
Row saved_row(const std::string &number) {
    Row row = numbered_row(zero_config_groups, number);
    for (const int column : {109, 110, 111}) {
        row.erase(column);
    }
    return row;
}

void insert_groups(std::initializer_list<const char *> numbers) {
    for (const char *number : numbers) {
        insert(zero_config_groups, {{0, number}});
    }
}

/// The number under which a new group is saved into a table with these groups.
int number_of_new(std::initializer_list<const char *> numbers) {
    support::execute("delete from WlanZeroCfgGroupInfo;");
    insert_groups(numbers);
    return DB_savezerocfgwlangroupinfo(sample_group(), 0);
}

TEST(GroupSaving, of_a_number_updates_its_row_and_inserts_none) {
    insert_groups({"3", "4"});
    const Recorder recorder;
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 3), 3);
    Lines expected{"lock", first_number, "unlock", "lock"};
    const Lines write = statements::write_of(update_of("3"));
    expected.insert(expected.end(), write.begin(), write.end());
    expected.emplace_back("unlock");
    EXPECT_EQ(recorder.calls({"lock", "sqlite3_prepare_v2", "sqlite3_exec", "unlock", "usleep", "system"}), expected);
    EXPECT_EQ(tables::difference(saved_row("3"), row_where(zero_config_groups, "WlanGroup_Id=3")), "");
    EXPECT_EQ(row_where(zero_config_groups, "WlanGroup_Id=4"), (Row{{0, "4"}}));
}

TEST(GroupSaving, of_a_new_group_inserts_a_row_under_the_next_number_and_updates_it) {
    insert_groups({"1", "4"});
    const Recorder recorder;
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 0), 5);
    EXPECT_EQ(
        recorder.calls({"lock", "sqlite3_prepare_v2", "sqlite3_exec insert", "sqlite3_exec update", "unlock"}),
        (Lines{"lock", first_number, "unlock", "lock", highest_number, "unlock", "lock",
               "sqlite3_exec " + insertion_of("5"), "unlock", "lock", "sqlite3_exec " + update_of("5"), "unlock"}));
    EXPECT_EQ(tables::difference(saved_row("5"), row_where(zero_config_groups, "WlanGroup_Id=5")), "");
    EXPECT_EQ(GetTableCount("WlanZeroCfgGroupInfo"), 3);
}

TEST(GroupSaving, of_a_first_group_gives_it_the_number_1_without_asking_for_the_highest) {
    const Recorder recorder;
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 0), 1);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2", "sqlite3_exec insert", "sqlite3_exec update"}),
              (Lines{first_number, "sqlite3_exec " + insertion_of("1"), "sqlite3_exec " + update_of("1")}));
    EXPECT_EQ(tables::difference(saved_row("1"), row_where(zero_config_groups, "1")), "");
}

TEST(GroupSaving, counts_from_the_highest_number_and_not_from_the_number_of_rows) {
    EXPECT_EQ(number_of_new({"1"}), 2);
    EXPECT_EQ(number_of_new({"1", "4"}), 5);
    EXPECT_EQ(number_of_new({"4", "1"}), 5);
    EXPECT_EQ(number_of_new({"7", "8", "9"}), 10);
    EXPECT_EQ(number_of_new({"1", "100", "50"}), 101);
}

TEST(GroupSaving, starts_with_1_again_when_the_first_row_has_the_number_0_or_none) {
    EXPECT_EQ(number_of_new({"0", "7"}), 1);
    EXPECT_EQ(number_of_new({"none", "7"}), 1);
    EXPECT_EQ(number_of_new({"7", "0"}), 8);
    support::execute("delete from WlanZeroCfgGroupInfo; insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(NULL);");
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 0), 1);
}

TEST(GroupSaving, goes_by_numbers_where_the_helper_that_it_shares_a_statement_with_counts_rows) {
    insert_groups({"1", "4", "0"});
    EXPECT_EQ(GET_DB_SQL_INT("select * from WlanZeroCfgGroupInfo;"), 3);
    EXPECT_EQ(GET_DB_SQL_INT("select MAX(WlanGroup_Id) from WlanZeroCfgGroupInfo ;"), 1);
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 0), 5);
}

TEST(GroupSaving, waits_for_the_numbers_like_that_helper) {
    insert_groups({"1"});
    Recorder recorder;
    recorder.answer("draw", {0});
    recorder.answer("sqlite3_open", {SQLITE_BUSY});
    recorder.answer("sqlite3_prepare_v2", {SQLITE_LOCKED});
    recorder.answer("sqlite3_step", {SQLITE_IOERR});
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 1), 1);
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{56, 61, 66}));
}

TEST(GroupSaving, of_a_number_that_no_row_has_writes_nothing_and_gives_it_back) {
    for (const int number : {3, -3, 2147483647}) {
        EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), number), number);
    }
    EXPECT_EQ(GetTableCount("WlanZeroCfgGroupInfo"), 0);
}

TEST(GroupSaving, writes_ssids_as_they_stand) {
    insert_groups({"3"});
    DevInfo group = sample_group();
    for (int wlan = 1; wlan <= 8; ++wlan) {
        put(group, "Dev_Wlan" + std::to_string(wlan) + "_Ssid", "\xd6\xd0\xff");
    }
    const Recorder recorder;
    DB_savezerocfgwlangroupinfo(group, 3);
    EXPECT_EQ(recorder.calls({"iconv_open"}), Lines());
    const Row row = row_where(zero_config_groups, "1");
    for (const int column : {4, 15, 26, 37, 48, 59, 70, 81}) {
        EXPECT_EQ(row.at(column), "\xd6\xd0\xff") << column;
    }
}

TEST(GroupSaving, writes_values_that_fill_their_members_whole) {
    const DevInfo group = places::record_of(std::string(places::record_size, 'x'));
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(group, 0), 1);
    Row expected{{93, std::string(20, 'x')}, {94, std::string(20, 'x')}, {95, std::string(200, 'x')}};
    for (const Place &place : places::all()) {
        if (place.group != places::none) {
            expected[place.group] = std::string(place.width, 'x');
        }
    }
    expected[0] = "1";
    EXPECT_EQ(tables::difference(expected, row_where(zero_config_groups, "1")), "");
}

TEST(GroupSaving, puts_values_into_its_statements_as_given) {
    DevInfo group = sample_group();
    put(group, "wlan_group_name", "it's");
    const Recorder recorder;
    const support::Streams::Text said =
        support::streams_of([&] { EXPECT_EQ(DB_savezerocfgwlangroupinfo(group, 0), 1); });
    EXPECT_EQ(said.output, support::build_profile.doubles_quotes
                               ? ""
                               : "cannot exec sql cmdline, Error: near \"s\": syntax error\n"
                                 "cannot exec sql cmdline, Error: near \"s\": syntax error\n");
    EXPECT_EQ(recorder.calls({"sqlite3_exec insert"}),
              Lines{"sqlite3_exec insert into WlanZeroCfgGroupInfo (WlanGroup_Id,WlanGroup_Name) values('1','" +
                    support::as_value("it's") + "') ;"});
    EXPECT_EQ(GetTableCount("WlanZeroCfgGroupInfo"), support::build_profile.doubles_quotes ? 1 : 0);
}

TEST(GroupSaving, a_failing_insertion_is_not_noticed) {
    Recorder recorder;
    recorder.answer("sqlite3_exec", {Recorder::really, Recorder::really, Recorder::really, SQLITE_ERROR});
    support::streams_of([] { EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 0), 1); });
    EXPECT_EQ(recorder.calls({"sqlite3_exec insert", "sqlite3_exec update"}),
              (Lines{"sqlite3_exec " + insertion_of("1"), "sqlite3_exec " + update_of("1")}));
}

TEST(GroupSaving, without_a_table_gives_the_number_back_all_the_same) {
    drop(zero_config_groups);
    const support::Streams::Text said =
        support::streams_of([] { EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 3), 3); });
    EXPECT_EQ(said.output,
              "cannot exec sql cmdline, Error: (null)\n"
              "cannot exec sql cmdline, Error: no such table: WlanZeroCfgGroupInfo\n");
}

TEST(GroupSaving, of_a_new_group_that_cannot_be_numbered_has_the_number_0) {
    ASSERT_EQ(std::remove(support::lock_file), 0);
    const support::Streams::Text said =
        support::streams_of([] { EXPECT_EQ(DB_savezerocfgwlangroupinfo(sample_group(), 0), 0); });
    EXPECT_EQ(said.error, support::cannot_open_lock_file + support::cannot_open_lock_file +
                              support::cannot_open_lock_file + support::cannot_open_lock_file);
    EXPECT_EQ(GetTableCount("WlanZeroCfgGroupInfo"), 0);
}

}  // namespace
