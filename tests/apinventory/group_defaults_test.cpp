// What a new zero-configuration group starts with.
#include <gtest/gtest.h>
#include <unistd.h>

#include "apinventory/tables.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using tables::zero_config_groups;
using Lines = std::vector<std::string>;

DevInfo new_group() {
    DevInfo group{};
    Initialwlanzerocfggroupinfo(&group);
    return group;
}

std::string new_name() {
    return places::text(new_group(), "wlan_group_name");
}

/// A group with nothing but what a new one has.
DevInfo expected_group() {
    constexpr const char *texts[][2] = {
        {"Dev_Wlan_GroupId", "0"},
        {"wlan_group_name", "ZeroCfgGROUP_NAME1"},
        {"Dev_RebootTime_Enable", "0"},
        {"Dev_RebootTime", "3"},
    };
    constexpr const char *of_wlan[][2] = {
        {"Hide_Ssid", "0"}, {"VlanId", "0"},   {"Security", "0"}, {"Securitycipher", "0"},
        {"Authmode", "0"},  {"Wep_Type", "0"}, {"Psk_Type", "0"},
    };
    constexpr const char *of_radio[][2] = {
        {"Channel", "0"},    {"Mode", "9"},      {"Bw", "0"},       {"Isolate", "0"},
        {"Ampdu", "1"},      {"ShortGI", "1"},   {"Rts", "2346"},   {"Beacon_Inertval", "100"},
        {"Cts", "2346"},     {"Txpower", "100"}, {"RxOption", "5"}, {"CoverageThreshold", "-90"},
        {"MaxStaNum", "32"},
    };
    constexpr const char *ssids[] = {"WLAN0",    "WLAN1",    "WLAN2",    "WLAN3",
                                     "WLAN_2_0", "WLAN_2_1", "WLAN_2_2", "WLAN_2_3"};
    constexpr const char *enabled[] = {"1", "0", "0", "0", "1", "0", "0", "0"};
    DevInfo group{};
    for (const auto &[name, text] : texts) {
        places::put(group, name, text);
    }
    for (std::size_t wlan = 0; wlan < 8; ++wlan) {
        const std::string prefix = "Dev_Wlan" + std::to_string(wlan + 1) + "_";
        places::put(group, prefix + "Ssid", ssids[wlan]);
        places::put(group, prefix + "Enable", enabled[wlan]);
        for (const auto &[name, text] : of_wlan) {
            places::put(group, prefix + name, text);
        }
    }
    for (const auto &[name, text] : of_radio) {
        places::put(group, std::string("Dev_Wlan_") + name, text);
        places::put(group, std::string("Dev_Wlan_") + name + "_sec", text);
    }
    return group;
}

TEST(NewGroup, has_defaults_and_is_empty_otherwise) {
    EXPECT_EQ(places::difference(expected_group(), new_group()), "");
}

TEST(NewGroup, has_no_rate) {
    EXPECT_EQ(places::text(new_group(), "Dev_Wlan_Rate"), "");
    EXPECT_EQ(places::text(new_group(), "Dev_Wlan_Rate_sec"), "");
}

TEST(NewGroup, bears_the_next_number_in_its_name) {
    EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME1");
    insert(zero_config_groups, {{0, "1"}});
    EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME2");
    insert(zero_config_groups, {{0, "4"}});
    EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME5");
}

TEST(NewGroup, bears_the_number_1_again_when_the_first_row_has_the_number_0) {
    insert(zero_config_groups, {{0, "0"}});
    insert(zero_config_groups, {{0, "7"}});
    EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME1");
}

TEST(NewGroup, goes_on_from_the_other_end_behind_the_highest_number) {
    insert(zero_config_groups, {{0, "2147483647"}});
    EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME-2147483648");
}

TEST(NewGroup, asks_for_the_first_number_and_the_highest) {
    const std::string first_number = support::build_profile.names_needed_columns
                                         ? "sqlite3_prepare_v2 select WlanGroup_Id from WlanZeroCfgGroupInfo;"
                                         : "sqlite3_prepare_v2 select * from WlanZeroCfgGroupInfo;";
    {
        const Recorder recorder;
        new_group();
        EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2", "sqlite3_exec"}), Lines{first_number});
    }
    insert(zero_config_groups, {{0, "1"}});
    const Recorder recorder;
    new_group();
    EXPECT_EQ(recorder.calls({"lock", "sqlite3_prepare_v2", "sqlite3_exec", "unlock"}),
              (Lines{"lock", first_number, "unlock", "lock",
                     "sqlite3_prepare_v2 select MAX(WlanGroup_Id) from WlanZeroCfgGroupInfo ;", "unlock"}));
}

TEST(NewGroup, bears_the_number_0_after_messages_when_the_groups_cannot_be_read) {
    drop(zero_config_groups);
    const auto without_table = support::streams_of([] { EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME0"); });
    EXPECT_EQ(without_table.output, "cannot exec sql cmdline, Error: (null)\ncannot exec sql cmdline, Error: (null)\n");
    EXPECT_EQ(without_table.error, "");

    tables::make_unopenable();
    constexpr char no_database[] = "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";
    const auto without_database = support::streams_of([] { EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME0"); });
    EXPECT_EQ(without_database.error, std::string(no_database) + no_database);

    ASSERT_EQ(unlink(support::lock_file), 0);
    const auto without_lock_file = support::streams_of([] { EXPECT_EQ(new_name(), "ZeroCfgGROUP_NAME0"); });
    EXPECT_EQ(without_lock_file.error, support::cannot_open_lock_file + support::cannot_open_lock_file);
}

TEST(NewGroup, is_not_reserved_and_saved_under_a_number_of_its_own) {
    insert(zero_config_groups, {{0, "1"}});
    insert(zero_config_groups, {{0, "4"}});
    const DevInfo first = new_group();
    const DevInfo second = new_group();
    EXPECT_EQ(places::text(second, "wlan_group_name"), "ZeroCfgGROUP_NAME5");
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(first, 0), 5);
    EXPECT_EQ(DB_savezerocfgwlangroupinfo(second, 0), 6);
    EXPECT_EQ(support::Database().rows("select WlanGroup_Id, WlanGroup_Name from WlanZeroCfgGroupInfo;"),
              (Lines{"1|NULL", "4|NULL", "5|ZeroCfgGROUP_NAME5", "6|ZeroCfgGROUP_NAME5"}));
}

TEST(NewGroup, reads_back_as_it_was_saved) {
    const DevInfo group = new_group();
    ASSERT_EQ(DB_savezerocfgwlangroupinfo(group, 0), 1);
    DevInfo expected = group;
    places::put(expected, "Dev_Wlan_GroupId", "1");
    DevInfo read;
    ASSERT_EQ(DB_getwlanzerocfggroupinfo(&read), 1);
    EXPECT_EQ(places::difference(expected, read), "");
}

}  // namespace
