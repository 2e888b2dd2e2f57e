// Reading groups: what goes beyond one row.
#include <gtest/gtest.h>

#include "apinventory/readers.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using places::put;
using readers::Reader;
using readers::Reading;
using support::Recorder;
using tables::Row;
using Lines = std::vector<std::string>;

class GroupReader : public testing::TestWithParam<Reader> {};

TEST_P(GroupReader, of_several_rows_the_last_one_wins) {
    insert(GetParam().table, numbered_row(GetParam().table, GetParam().key));
    insert(GetParam().table, {{0, GetParam().key}, {1, "last"}, {90, "11"}});
    const Reading reading = GetParam().read();
    DevInfo expected{};
    put(expected, "Dev_Wlan_GroupId", GetParam().key);
    put(expected, "wlan_group_name", "last");
    put(expected, "Dev_Wlan_Channel", "11");
    EXPECT_EQ(places::text_difference(expected, reading.record), "");
    EXPECT_EQ(reading.result, GetParam().result);
}

TEST_P(GroupReader, a_group_that_does_not_exist_gives_the_usual_result_in_silence) {
    insert(GetParam().table, {{0, GetParam().other_key}});
    const Recorder recorder;
    const support::Streams::Text said =
        support::streams_of([] { EXPECT_EQ(GetParam().read().result, GetParam().result); });
    EXPECT_EQ(said.output + said.error, "");
    EXPECT_EQ(recorder.calls({"syslog"}), Lines());
}

TEST_P(GroupReader, transmit_powers_and_reboot_times_belong_to_zero_configuration) {
    insert(GetParam().table, numbered_row(GetParam().table, GetParam().key));
    const DevInfo record = GetParam().read().record;
    const bool zero_config = GetParam().table.columns == 126;
    EXPECT_EQ(places::text(record, "Dev_RebootTime_Enable"), zero_config ? "c122" : "");
    EXPECT_EQ(places::text(record, "Dev_RebootTime"), zero_config ? "c123" : "");
    EXPECT_EQ(places::text(record, "Dev_Wlan_Txpower"), zero_config ? "c124" : "");
    EXPECT_EQ(places::text(record, "Dev_Wlan_Txpower_sec"), zero_config ? "c125" : "");
}

TEST(WlanGroup, has_no_transmit_powers_and_reboot_times_where_its_table_has_columns_for_them) {
    insert(tables::wlan_groups, numbered_row(tables::wlan_groups, "7"));
    for (const char *column : {"Dev_RebootTime_Enable", "Dev_RebootTime", "Wlan_Txpower", "Wlan_Txpower_sec"}) {
        support::execute(std::string("alter table WlanGroupInfo add column WlanGroup_") + column +
                         " TEXT default '9';");
    }
    DevInfo group;
    EXPECT_EQ(DB_getwlangroupinfoByindex(&group, 7), 0);
    EXPECT_EQ(places::text(group, "Dev_Wlan_MaxStaNum_sec"), "c121");
    for (const char *name : {"Dev_RebootTime_Enable", "Dev_RebootTime", "Dev_Wlan_Txpower", "Dev_Wlan_Txpower_sec"}) {
        EXPECT_EQ(places::text(group, name), "") << name;
    }
}

std::vector<Reader> group_readers() {
    std::vector<Reader> readers = readers::all();
    readers.erase(readers.begin(), readers.begin() + 4);  // those of access points
    return readers;
}

INSTANTIATE_TEST_SUITE_P(All, GroupReader, testing::ValuesIn(group_readers()), testing::PrintToStringParamName());

TEST(GroupNumber, stands_in_the_statement_as_a_text_with_its_sign) {
    const Recorder recorder;
    DevInfo group;
    DB_getwlangroupinfoByindex(&group, -2147483647 - 1);
    DB_getwlangroupinfoByindex(&group, 2147483647);
    DB_getwlanzerocfggroupinfoByindex(&group, -2147483647 - 1);
    DB_getwlanzerocfggroupinfoByindex(&group, 0);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}),
              (Lines{"sqlite3_prepare_v2 select * from WlanGroupInfo where WlanGroup_Id='-2147483648';",
                     "sqlite3_prepare_v2 select * from WlanGroupInfo where WlanGroup_Id='2147483647';",
                     "sqlite3_prepare_v2 select * from WlanZeroCfgGroupInfo where WlanGroup_Id='-2147483648';",
                     "sqlite3_prepare_v2 select * from WlanZeroCfgGroupInfo where WlanGroup_Id='0';"}));
}

TEST(WlanGroup, by_its_number_gives_what_closing_the_database_gave) {
    insert(tables::wlan_groups, numbered_row(tables::wlan_groups, "7"));
    for (const int number : {7, 8}) {
        Recorder recorder;
        recorder.answer("sqlite3_close", {SQLITE_BUSY});
        DevInfo group;
        EXPECT_EQ(DB_getwlangroupinfoByindex(&group, number), SQLITE_BUSY);
        EXPECT_EQ(places::text(group, "wlan_group_name"), number == 7 ? "c1" : "");
        EXPECT_EQ(DB_getwlangroupinfoByindex(&group, number), SQLITE_OK);
    }
}

TEST(DefaultGroup, of_an_empty_table_gives_0_and_leaves_the_record_as_it_was) {
    DevInfo group = places::odd_record();
    EXPECT_EQ(DB_getwlanzerocfggroupinfo(&group), 0);
    EXPECT_EQ(places::difference(places::odd_record(), group), "");
}

TEST(DefaultGroup, of_a_table_that_cannot_be_counted_gives_0_and_leaves_the_record_as_it_was) {
    insert(tables::zero_config_groups, {{0, "1"}});
    drop(tables::zero_config_groups);
    DevInfo group = places::odd_record();
    const Recorder recorder;
    const auto said = support::streams_of([&] {
        EXPECT_EQ(DB_getwlanzerocfggroupinfo(&group), 0);
        tables::make_unopenable();
        const support::DeliberateLeak connection;
        EXPECT_EQ(DB_getwlanzerocfggroupinfo(&group), 0);
    });
    EXPECT_EQ(said.output + said.error, "");
    EXPECT_EQ(recorder.calls({"syslog"}),
              (Lines{"syslog 3 cannot prepare sql cmdline, Error: no such table: WlanZeroCfgGroupInfo\n",
                     "syslog 3 cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n"}));
    EXPECT_EQ(places::difference(places::odd_record(), group), "");
}

TEST(DefaultGroup, is_converted_where_the_same_group_by_number_is_not) {
    insert(tables::zero_config_groups, {{0, "1"}, {15, "\xe4\xb8\xad"}});
    DevInfo group;
    EXPECT_EQ(DB_getwlanzerocfggroupinfo(&group), 1);
    EXPECT_EQ(places::text(group, "Dev_Wlan2_Ssid"), "\xd6\xd0");
    EXPECT_EQ(DB_getwlanzerocfggroupinfoByindex(&group, 1), 0);
    EXPECT_EQ(places::text(group, "Dev_Wlan2_Ssid"), "\xe4\xb8\xad");
}

TEST(ZeroConfigGroup, has_a_first_sleep_of_56_to_155_microseconds) {
    for (const auto &[drawn, sleep] : {std::pair(0, 56U), {1073741824, 106U}, {2147483647, 155U}}) {
        Recorder recorder;
        recorder.answer("draw", {drawn});
        recorder.answer("sqlite3_open", {SQLITE_BUSY});
        DevInfo group;
        DB_getwlanzerocfggroupinfoByindex(&group, 1);
        EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{sleep});
    }
}

/// Asks for a group by the text of its number.
int get(DevInfo &group, const char *number) {
    group = places::odd_record();
    return GetWlanZeroCfgGroupInfo(&group, number);
}

TEST(GetWlanZeroCfgGroupInfo, reads_the_group_of_a_number) {
    insert(tables::zero_config_groups, numbered_row(tables::zero_config_groups, "3"));
    DevInfo group;
    for (const char *number : {"3", "03", " 3", "3x", "+3"}) {
        EXPECT_EQ(get(group, number), 0);
        EXPECT_EQ(places::text(group, "wlan_group_name"), "c1") << number;
    }
}

TEST(GetWlanZeroCfgGroupInfo, reads_a_number_however_many_zeros_it_has) {
    insert(tables::zero_config_groups, numbered_row(tables::zero_config_groups, "3"));
    DevInfo group;
    get(group, (std::string(60, '0') + "3").c_str());
    EXPECT_EQ(places::text(group, "wlan_group_name"), "c1");
}

TEST(GetWlanZeroCfgGroupInfo, clears_the_record_of_a_group_that_does_not_exist) {
    insert(tables::zero_config_groups, numbered_row(tables::zero_config_groups, "3"));
    DevInfo group;
    for (const char *number : {"4", "-3"}) {
        EXPECT_EQ(get(group, number), 0);
        EXPECT_EQ(places::difference(DevInfo{}, group), "") << number;
    }
}

TEST(GetWlanZeroCfgGroupInfo, gives_minus_1_for_a_database_that_cannot_be_opened) {
    tables::make_unopenable();
    DevInfo group;
    support::streams_of([&] { EXPECT_EQ(get(group, "3"), -1); });
    EXPECT_EQ(places::difference(DevInfo{}, group), "");
}

TEST(GetWlanZeroCfgGroupInfo, starts_a_new_group_for_0_and_for_what_is_no_number) {
    insert(tables::zero_config_groups, {{0, "3"}});
    DevInfo expected{};
    Initialwlanzerocfggroupinfo(&expected);
    ASSERT_EQ(places::text(expected, "wlan_group_name"), "ZeroCfgGROUP_NAME4");
    for (const char *number : {"0", "abc", "", "-0", "x3", "00", static_cast<const char *>(nullptr)}) {
        DevInfo group;
        get(group, number);
        EXPECT_EQ(places::difference(expected, group), "") << (number != nullptr ? number : "null");
    }
}

}  // namespace
