// The life of an access point from end to end, with the events that the rest of the system sees.
#include <gtest/gtest.h>

#include <algorithm>

#include "apinventory/tables.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/process.h"
#include "support/streams.h"

namespace {

using places::put;
using places::text;

constexpr char mac[] = "00:1a:2b:3c:4d:5e";
constexpr unsigned long sn = 335653056;  // of 192.168.1.20
constexpr char chinese[] = "\xe4\xb8\xad\xe6\x96\x87";
constexpr char chinese_in_gb2312[] = "\xd6\xd0\xce\xc4";

class Life : public testing::Test {
protected:
    /// What an access point with two radios reports about itself.
    static DevInfo report() {
        DevInfo device{};
        put(device, "Dev_MAC", mac);
        put(device, "Dev_Ipaddress", "192.168.1.20");
        put(device, "Dev_Name", "corridor");
        put(device, "Dev_Wlan_Radio_Num", "8");
        put(device, "Dev_Wlan2_Ssid", chinese_in_gb2312);
        put(device, "Dev_Wlan2_Bssid", "00:1a:2b:3c:4d:62");
        put(device, "Dev_Wlan_Channel", "6");
        put(device, "Dev_Wlan_Txpower", "80");
        put(device, "Dev_Wlan_Txpower_sec", "90");
        put(device, "Dev_Wlan_Sta_Num", "7");
        put(device, "Dev_Wlan_Sta_Num_sec", "9");
        return device;
    }

    static DevInfo stored() {
        DevInfo device;
        EXPECT_EQ(DB_getinfo(&device, sn, 1), 1);
        return device;
    }

    static std::string stored(const char *name) { return text(stored(), name); }

    static void register_it() { EXPECT_EQ(DB_addinfo(report()), static_cast<int>(sn)); }

    /// Waits until an event has reached the system, so that the next one comes behind it.
    void expect_event(const std::string &event) {
        events_ += "send_event 5 4 " + event + "\n";
        EXPECT_TRUE(support::eventually([&] {
            return support::file_exists("/var/calls") && support::file_content("/var/calls").size() >= events_.size();
        }));
        EXPECT_EQ(support::file_content("/var/calls"), events_);
    }

    /// A WLAN group with a Chinese SSID on its networks 1 and 2.
    static DevInfo wlan_group() {
        tables::Row row = numbered_row(tables::wlan_groups, "3");
        row[4] = chinese;
        row[15] = chinese;
        insert(tables::wlan_groups, row);
        DevInfo group;
        EXPECT_EQ(DB_getwlangroupinfoByindex(&group, 3), 0);
        return group;
    }

private:
    std::string events_;
    // A text that already is GB2312 cannot be converted.
    const support::DeliberateLeak converters_;
};

TEST_F(Life, begins_with_registration) {
    register_it();
    expect_event("add#335653056");
    EXPECT_EQ(get_devinfo_count(), 1);
    EXPECT_EQ(GetApDevList_count(), 1);
    EXPECT_EQ(support::value("select Dev_Wlan2_Ssid from DevInfo;"), chinese);
    DevInfo expected = report();
    expected.Dev_Sn = sn;
    put(expected, "Dev_Wlan_GroupId", "0");
    put(expected, "Dev_Status", "1");
    put(expected, "Dev_Upgrade_Status", "0");
    EXPECT_EQ(places::text_difference(expected, stored()), "");
    EXPECT_EQ(stored().Dev_Sn, sn);
}

TEST_F(Life, follows_a_wlan_group_and_keeps_following_it) {
    register_it();
    expect_event("add#335653056");
    const DevInfo group = wlan_group();
    DevInfo device = stored();
    EXPECT_EQ(support::streams_of([&] { EXPECT_EQ(CompareDevInfoWithGroupInfo(device, group), 1); }).output,
              "CompareDevInfoWithGroupInfo 6054\n");
    SetDevInfoFromWlanGroupInfo(&device, &group);
    EXPECT_EQ(DB_UpdateInfo(device), 0);
    EXPECT_EQ(CompareDevInfoWithGroupInfo(stored(), group), 0);
    EXPECT_EQ(stored("Dev_Wlan_GroupId"), "3");
    EXPECT_EQ(stored("Dev_Wlan1_Ssid"), chinese);
    EXPECT_EQ(stored("Dev_Wlan2_Ssid"), chinese_in_gb2312);
    EXPECT_EQ(stored("Dev_Wlan2_Bssid"), "00:1a:2b:3c:4d:62");
    EXPECT_EQ(stored("Dev_Wlan_Channel"), "6");
    register_it();  // it reports its own settings again, and stays in the group
    expect_event("add#335653056");
    EXPECT_EQ(stored("Dev_Wlan_GroupId"), "3");
    support::streams_of([&] { EXPECT_EQ(CompareDevInfoWithGroupInfo(stored(), group), 1); });
}

TEST_F(Life, differs_from_the_default_group_and_is_brought_into_agreement) {
    register_it();
    DevInfo fresh;
    GetWlanZeroCfgGroupInfo(&fresh, "0");
    ASSERT_EQ(DB_savezerocfgwlangroupinfo(fresh, 0), 1);
    DevInfo group;
    ASSERT_EQ(DB_getwlanzerocfggroupinfo(&group), 1);
    DevInfo device = stored();
    EXPECT_EQ(CompareDevInfoWithZeroGroupInfo(device, group), 1);
    SetDevInfoFromWlanZeroCfgGroupInfo(&device, &group);
    EXPECT_EQ(CompareDevInfoWithZeroGroupInfo(device, group), 0);
    EXPECT_EQ(DB_UpdateInfo(device), 0);
    EXPECT_EQ(stored("Dev_Wlan_Txpower"), "100");
    EXPECT_EQ(stored("Dev_Wlan_Channel"), "0");
    EXPECT_EQ(stored("Dev_Wlan_Channel_sec"), "15");
    // Reboot times go to the table with a report only.
    EXPECT_EQ(CompareDevInfoWithZeroGroupInfo(stored(), group), 1);
    DB_saveinfo(&device);
    EXPECT_EQ(CompareDevInfoWithZeroGroupInfo(stored(), group), 0);
}

TEST_F(Life, goes_offline_and_comes_back) {
    register_it();
    expect_event("add#335653056");
    EXPECT_EQ(stored("Dev_Wlan_Sta_Num"), "7");
    SetDevStatusbyIP("192.168.1.20", "0");
    char status[5];
    GetDevStatus(mac, status);
    EXPECT_STREQ(status, "0");
    EXPECT_EQ(stored("Dev_Wlan_Sta_Num"), "0");
    EXPECT_EQ(stored("Dev_Wlan_Sta_Num_sec"), "0");
    EXPECT_EQ(GetApDevList_count(), 0);
    EXPECT_EQ(get_devinfo_count(), 1);
    register_it();
    expect_event("add#335653056");
    GetDevStatus(mac, status);
    EXPECT_STREQ(status, "1");
    EXPECT_EQ(GetApDevList_count(), 1);
    EXPECT_EQ(stored("Dev_Wlan_Sta_Num_sec"), "9");
}

TEST_F(Life, is_upgraded_until_it_registers_again) {
    register_it();
    expect_event("add#335653056");
    support::execute("insert into DevUpgradeInfo(Dev_SwName) values('firmware 2');");
    for (const char *state : {"1", "2"}) {
        SetDevUpgradeStatus(mac, state);
        expect_event("mod#335653056");
        char status[25];
        GetDevUpgradeStatus(mac, status);
        EXPECT_STREQ(status, state);
    }
    ApDevUpgradeInfo upgrade{};
    std::string("firmware 2").copy(upgrade.Dev_SwName, sizeof(upgrade.Dev_SwName));
    EXPECT_EQ(DeleteApDevUpgradeInfo(&upgrade), 0);
    EXPECT_EQ(GetTableCount("DevUpgradeInfo"), 0);
    register_it();
    expect_event("add#335653056");
    EXPECT_EQ(stored("Dev_Upgrade_Status"), "0");
}

TEST_F(Life, ends_when_another_device_takes_the_address) {
    register_it();
    expect_event("add#335653056");
    DevInfo successor = report();
    put(successor, "Dev_MAC", "00:1a:2b:3c:4d:99");
    EXPECT_EQ(DB_addinfo(successor), static_cast<int>(sn));
    expect_event("add#335653056");
    EXPECT_EQ(stored("Dev_MAC"), "00:1a:2b:3c:4d:99");
    unsigned long number = 0;
    EXPECT_EQ(DB_findinfo2(report(), &number), 0);
    SetDevUpgradeStatus(mac, "1");
    expect_event("mod#0");
    ApDevList list;
    EXPECT_EQ(GetApDevList(&list, 0), 1);
    EXPECT_EQ(list.count, 1U);
    FreeApDevList(&list);
}

}  // namespace
