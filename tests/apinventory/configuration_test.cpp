// DB_UpdateInfo and DB_saveinfo beyond their statements' texts: transmit powers, results, failures.
#include <gtest/gtest.h>

#include <cstdio>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using places::put;
using statements::sample_device;
using support::Recorder;
using tables::Row;
using Lines = std::vector<std::string>;

/// An access point with the sample's number and MAC address.
void insert_device() {
    Row row = uniform_row(tables::devices, "77", "old");
    row[8] = "00:1a:2b:3c:4d:5e";
    insert(tables::devices, row);
}

class TransmitPower : public testing::Test {
protected:
    TransmitPower() { insert_device(); }

    /// The update of a record with these powers.
    static Lines update(const std::string &first, const std::string &second) {
        DevInfo device = sample_device();
        put(device, "Dev_Wlan_Txpower", first);
        put(device, "Dev_Wlan_Txpower_sec", second);
        const Recorder recorder;
        EXPECT_EQ(DB_UpdateInfo(device), 0);
        return recorder.calls({"sqlite3_exec update"});
    }

    static Lines stored() {
        return support::Database().rows("select Dev_Wlan_Txpower, Dev_Wlan_Txpower_sec from DevInfo;");
    }
};

TEST_F(TransmitPower, from_10_to_100_is_written) {
    for (const std::string power : {"10", "11", "99", "100", "50%", " 20", "010"}) {
        EXPECT_EQ(update(power, power),
                  Lines{"sqlite3_exec " + statements::configuration(8, " Dev_Wlan_Txpower='" + power + "',",
                                                                    " Dev_Wlan_Txpower_sec='" + power + "',")});
        EXPECT_EQ(stored(), Lines{power + "|" + power});
    }
}

TEST_F(TransmitPower, outside_of_10_to_100_or_no_number_is_left_as_it_was) {
    for (const char *power : {"9", "101", "", "0", "-10", "-50", "x", "x50", "1000", "99999"}) {
        EXPECT_EQ(update(power, power), Lines{"sqlite3_exec " + statements::configuration(8, "", "")}) << power;
        EXPECT_EQ(stored(), Lines{"old|old"});
    }
}

TEST_F(TransmitPower, each_radio_has_its_own) {
    update("9", "10");
    EXPECT_EQ(stored(), Lines{"old|10"});
    update("100", "101");
    EXPECT_EQ(stored(), Lines{"100|10"});
}

TEST_F(TransmitPower, is_reported_whatever_it_is) {
    DevInfo device = sample_device();
    for (const std::string power : {"9", "101", "", "x"}) {
        put(device, "Dev_Wlan_Txpower", power);
        put(device, "Dev_Wlan_Txpower_sec", power);
        DB_saveinfo(&device);
        EXPECT_EQ(stored(), Lines{power + "|" + power});
    }
}

TEST(DbUpdateInfo, executes_under_the_lock_and_tells_nobody) {
    insert_device();
    const Recorder recorder;
    EXPECT_EQ(DB_UpdateInfo(sample_device()), 0);
    Lines expected{"open lock file", "draw", "lock", "sqlite3_open /etc/config/systemconf/database/myrouter.db"};
    const Lines write = statements::write_of(statements::configuration());
    expected.insert(expected.end(), write.begin(), write.end());
    expected.insert(expected.end(), {"sqlite3_free", "sqlite3_close", "unlock", "close lock file"});
    EXPECT_EQ(recorder.calls(), expected);
}

TEST(DbUpdateInfo, a_number_without_a_row_changes_nothing_and_gives_0) {
    insert(tables::devices, {{0, "78"}, {8, "00:1a:2b:3c:4d:5e"}});
    EXPECT_EQ(DB_UpdateInfo(sample_device()), 0);
    EXPECT_EQ(row_where(tables::devices, "1"), (Row{{0, "78"}, {8, "00:1a:2b:3c:4d:5e"}}));
}

TEST(DbUpdateInfo, a_number_has_no_sign) {
    insert(tables::devices, {{0, "4294967295"}});
    DevInfo device = sample_device();
    device.Dev_Sn = 4294967295U;
    EXPECT_EQ(DB_UpdateInfo(device), 0);
    EXPECT_EQ(row_where(tables::devices, "1").at(153), "1");
}

TEST(DbUpdateInfo, a_failure_gives_minus_1_and_a_message) {
    drop(tables::devices);
    const support::Streams::Text said = support::streams_of([] { EXPECT_EQ(DB_UpdateInfo(sample_device()), -1); });
    EXPECT_EQ(said.output, "cannot exec sql cmdline, Error: no such table: DevInfo\n");
    ASSERT_EQ(std::remove(support::lock_file), 0);
    EXPECT_EQ(support::streams_of([] { EXPECT_EQ(DB_UpdateInfo(sample_device()), -1); }).error,
              support::cannot_open_lock_file);
}

TEST(DbSaveinfo, executes_once_and_tells_nobody) {
    insert_device();
    const DevInfo device = sample_device();
    const Recorder recorder;
    DB_saveinfo(&device);
    EXPECT_EQ(recorder.calls({"sqlite3_exec", "sqlite3_prepare_v2", "system", "usleep", "syslog"}),
              statements::write_of(statements::saving()));
}

TEST(DbSaveinfo, writes_all_rows_of_its_address_and_inserts_none) {
    DevInfo device = sample_device();
    DB_saveinfo(&device);
    EXPECT_EQ(get_devinfo_count(), 0);
    for (const char *sn : {"1", "2"}) {
        insert(tables::devices, {{0, sn}, {8, "00:1a:2b:3c:4d:5e"}});
    }
    insert(tables::devices, {{0, "77"}, {8, "00:00:00:00:00:01"}});
    DB_saveinfo(&device);
    EXPECT_EQ(support::Database().rows("select Dev_Sn, Dev_Name, Dev_Status from DevInfo;"),
              (Lines{"1|c2|NULL", "2|c2|NULL", "77|NULL|NULL"}));
}

TEST(DbSaveinfo, a_failure_shows_in_a_message_only) {
    drop(tables::devices);
    const DevInfo device = sample_device();
    EXPECT_EQ(support::streams_of([&] { DB_saveinfo(&device); }).output,
              "cannot exec sql cmdline, Error: no such table: DevInfo\n");
}

}  // namespace
