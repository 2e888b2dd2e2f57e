// Serial numbers, counts, and the upgrade status with its event.
#include <gtest/gtest.h>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using tables::devices;
using Lines = std::vector<std::string>;

constexpr char mac[] = "00:1a:2b:3c:4d:5e";
constexpr char no_table[] = "syslog 3 cannot prepare sql cmdline, Error: no such table: DevInfo\n";
constexpr char no_database[] = "syslog 3 cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";

unsigned long sn_by_mac(const char *address) {
    unsigned long sn = 9;
    GetDevSNByMac(address, &sn);
    return sn;
}

unsigned long sn_by_ip(const char *address) {
    unsigned long sn = 9;
    GetDevSNByIp(address, &sn);
    return sn;
}

std::string mac_by_sn(unsigned long sn) {
    char text[20] = "before";
    GetDevMacBySN(sn, text);
    return text;
}

class Identity : public testing::Test {
protected:
    Identity() {
        insert(devices, {{0, "4294967295"}, {3, "10.0.0.5"}, {8, mac}, {153, "1"}, {159, "7"}});
        insert(devices, {{0, "6"}, {3, ""}, {8, ""}, {153, "0"}, {159, "8"}});
        insert(devices, {{0, "7"}, {153, "1"}});
    }
};

TEST_F(Identity, serial_numbers_are_read_by_either_address) {
    EXPECT_EQ(sn_by_mac(mac), 4294967295UL);
    EXPECT_EQ(sn_by_ip("10.0.0.5"), 4294967295UL);
    EXPECT_EQ(sn_by_mac(""), 6UL);
    EXPECT_EQ(sn_by_ip(""), 6UL);
}

TEST_F(Identity, a_serial_number_without_a_row_is_left_as_it_was) {
    EXPECT_EQ(sn_by_mac("unknown"), 9UL);
    EXPECT_EQ(sn_by_ip("unknown"), 9UL);
}

TEST_F(Identity, an_address_in_two_rows_has_the_number_0) {
    support::execute("update DevInfo set Dev_MAC='two', Dev_Ipaddress='two' where Dev_Sn<>7;");
    EXPECT_EQ(sn_by_mac("two"), 0UL);
    EXPECT_EQ(sn_by_ip("two"), 0UL);
}

TEST_F(Identity, a_mac_address_is_read_by_serial_number) {
    EXPECT_EQ(mac_by_sn(4294967295UL), mac);
    EXPECT_EQ(mac_by_sn(6), "");
    EXPECT_EQ(mac_by_sn(7), "before");  // NULL
    EXPECT_EQ(mac_by_sn(8), "before");
}

TEST_F(Identity, a_serial_number_in_the_statement_has_no_sign) {
    const Recorder recorder;
    mac_by_sn(4294967295UL);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}),
              Lines{"sqlite3_prepare_v2 select Dev_MAC from  DevInfo where Dev_Sn='4294967295';"});
}

TEST_F(Identity, failures_leave_everything_as_it_was) {
    drop(devices);
    const Recorder recorder;
    EXPECT_EQ(sn_by_mac(mac), 9UL);
    EXPECT_EQ(sn_by_ip("10.0.0.5"), 9UL);
    EXPECT_EQ(support::streams_of([] { EXPECT_EQ(mac_by_sn(6), "before"); }).output,
              "cannot prepare sql cmdline, Error: no such table: DevInfo\n");
    EXPECT_EQ(recorder.calls({"syslog"}), (Lines{no_table, no_table}));
}

TEST_F(Identity, rows_are_counted_one_by_one) {
    const Recorder recorder;
    EXPECT_EQ(GetTableCount("DevInfo"), 3);
    EXPECT_EQ(recorder.calls({"sqlite3_step"}).size(), 4U);
    EXPECT_EQ(GetTableCount("WlanGroupInfo"), 0);
    EXPECT_EQ(GetTableCount("DevInfo where Dev_Status='1'"), support::build_profile.checks_conditions ? 0 : 2);
    EXPECT_EQ(GetTableCount("DevInfo\""), 0);
}

TEST_F(Identity, rows_that_cannot_be_counted_are_0) {
    const Recorder recorder;
    EXPECT_EQ(GetTableCount("nowhere"), 0);
    drop(devices);
    EXPECT_EQ(get_devinfo_count(), 0);
    tables::make_unopenable();
    {
        const support::DeliberateLeak connections;
        EXPECT_EQ(get_devinfo_count(), 0);
        EXPECT_EQ(get_wlangroupinfo_count(), 0);
    }
    EXPECT_EQ(recorder.calls({"syslog"}), (Lines{"syslog 3 cannot prepare sql cmdline, Error: no such table: nowhere\n",
                                                 no_table, no_database, no_database}));
}

TEST_F(Identity, access_points_and_groups_have_counts_of_their_own) {
    insert(tables::wlan_groups, {{0, "1"}});
    insert(tables::wlan_groups, {{0, "1"}});
    const Recorder recorder;
    EXPECT_EQ(get_devinfo_count(), 3);
    EXPECT_EQ(get_wlangroupinfo_count(), 2);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}), (Lines{"sqlite3_prepare_v2 select *  from DevInfo;",
                                                             "sqlite3_prepare_v2 select *  from WlanGroupInfo;"}));
}

TEST_F(Identity, those_online_are_counted_by_the_database) {
    const Recorder recorder;
    EXPECT_EQ(GetApDevList_count(), 2);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2", "sqlite3_step"}),
              (Lines{"sqlite3_prepare_v2 select count(*) from DevInfo  where Dev_Status='1';", "sqlite3_step"}));
}

TEST_F(Identity, those_online_that_cannot_be_counted_are_minus_1) {
    drop(devices);
    EXPECT_EQ(support::streams_of([] { EXPECT_EQ(GetApDevList_count(), -1); }).output, "Error: no such table: DevInfo");
}

TEST_F(Identity, an_upgrade_status_is_written_and_announced) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    SetDevUpgradeStatus(mac, "4");
    Lines expected =
        statements::write_of("update DevInfo set Dev_Upgrade_Status='4'  where Dev_MAC='00:1a:2b:3c:4d:5e';");
    expected.insert(expected.end(),
                    {"sqlite3_prepare_v2 select Dev_Sn from  DevInfo where Dev_MAC='00:1a:2b:3c:4d:5e';",
                     "system /bin/send_event 5 4 mod#4294967295 >/dev/null 2>&1 &"});
    EXPECT_EQ(recorder.calls({"sqlite3_exec", "sqlite3_prepare_v2", "system"}), expected);
    EXPECT_EQ(support::Database().rows("select Dev_Upgrade_Status from DevInfo order by Dev_Sn;"),
              (Lines{"8", "NULL", "4"}));
}

TEST_F(Identity, an_upgrade_status_of_an_unknown_mac_address_is_announced_with_0) {
    SetDevUpgradeStatus("unknown", "4");
    ASSERT_TRUE(support::eventually([] { return support::file_exists("/var/calls"); }));
    EXPECT_TRUE(support::eventually([] { return support::file_content("/var/calls") == "send_event 5 4 mod#0\n"; }));
    EXPECT_EQ(support::value("select count(*) from DevInfo where Dev_Upgrade_Status='4';"), "0");
}

TEST_F(Identity, an_upgrade_status_that_cannot_be_written_is_announced) {
    drop(devices);
    Recorder recorder;
    recorder.keep_commands_from_running();
    support::streams_of([] { SetDevUpgradeStatus(mac, "4"); });
    EXPECT_EQ(recorder.calls({"system"}), Lines{"system /bin/send_event 5 4 mod#0 >/dev/null 2>&1 &"});
}

TEST_F(Identity, an_upgrade_status_is_put_into_its_statement_as_given) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    support::streams_of([] { SetDevUpgradeStatus("it's", "l'o"); });
    support::streams_of([] { SetDevUpgradeStatus(nullptr, nullptr); });
    EXPECT_EQ(
        recorder.calls({"sqlite3_exec update", "sqlite3_prepare_v2"}),
        (Lines{"sqlite3_exec update DevInfo set Dev_Upgrade_Status='" + support::as_value("l'o") +
                   "'  where Dev_MAC='" + support::as_value("it's") + "';",
               "sqlite3_prepare_v2 select Dev_Sn from  DevInfo where Dev_MAC='" + support::as_value("it's") + "';",
               "sqlite3_exec update DevInfo set Dev_Upgrade_Status=''  where Dev_MAC='';",
               "sqlite3_prepare_v2 select Dev_Sn from  DevInfo where Dev_MAC='';"}));
}

}  // namespace
