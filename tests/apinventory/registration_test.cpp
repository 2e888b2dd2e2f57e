// DB_addinfo: what it makes of the table, and what it returns.
#include <gtest/gtest.h>

#include <functional>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using places::put;
using statements::sample_device;
using support::Recorder;
using tables::devices;
using tables::Row;
using Lines = std::vector<std::string>;

constexpr char mac[] = "00:1a:2b:3c:4d:5e";
constexpr int sn_of_address = 335653056;  // of 192.168.1.20

/// An access point that reports two addresses and a name.
DevInfo device(const std::string &mac_address, const std::string &address, const std::string &name = "reported") {
    DevInfo device{};
    put(device, "Dev_MAC", mac_address);
    put(device, "Dev_Ipaddress", address);
    put(device, "Dev_Name", name);
    return device;
}

void insert_device(const std::string &sn, const std::string &mac_address) {
    insert(devices, {{0, sn}, {2, "old"}, {8, mac_address}, {14, "3"}, {153, "0"}, {159, "7"}});
}

/// So many access points, with the numbers 1 to n and MAC addresses of two digits.
void insert_devices(int n) {
    for (int i = 1; i <= n; ++i) {
        insert_device(std::to_string(i), std::to_string(i + 10));
    }
}

Lines rows() {
    return support::Database().rows("select Dev_Sn, Dev_MAC, Dev_Name from DevInfo order by Dev_Sn;");
}

constexpr bool at_once = support::build_profile.registers_at_once;
constexpr const char *count = support::build_profile.names_needed_columns
                                  ? "sqlite3_prepare_v2 select 1 from DevInfo;"
                                  : "sqlite3_prepare_v2 select *  from DevInfo;";

/// Registers an access point. When its lookups are over, other rows appear, which takes that it is no transaction.
int register_late(const DevInfo &reported, const std::function<void()> &appear) {
    Recorder recorder;
    if (at_once) {
        recorder.answer("sqlite3_open", {SQLITE_CANTOPEN});
    }
    recorder.watch([&](const std::string &line) {
        if (line == count) {
            appear();
        }
    });
    const int result = DB_addinfo(reported);
    EXPECT_EQ(recorder.calls({"sqlite3_exec insert"}).size(), 1U);
    return result;
}

TEST(DbAddinfo, a_new_one_gets_a_row_with_the_number_of_its_address) {
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), sn_of_address);
    EXPECT_EQ(rows(), Lines{"335653056|00:1a:2b:3c:4d:5e|reported"});
}

TEST(DbAddinfo, a_new_one_starts_online_without_group_or_upgrade) {
    DB_addinfo(sample_device());
    const Row row = row_where(devices, "1");
    EXPECT_EQ(row.at(14), "0");
    EXPECT_EQ(row.at(153), "1");
    EXPECT_EQ(row.at(159), "0");
}

TEST(DbAddinfo, a_known_one_keeps_number_and_group_and_is_online_without_upgrade) {
    insert_device("5", mac);
    EXPECT_EQ(DB_addinfo(sample_device()), 5);
    const Row row = row_where(devices, "1");
    EXPECT_EQ(row.at(0), "5");
    EXPECT_EQ(row.at(2), "c2");
    EXPECT_EQ(row.at(14), "3");
    EXPECT_EQ(row.at(153), "1");
    EXPECT_EQ(row.at(159), "0");
}

TEST(DbAddinfo, a_known_one_keeps_its_number_under_a_new_address) {
    DB_addinfo(device(mac, "192.168.1.20"));
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.21")), sn_of_address);
    EXPECT_EQ(support::Database().rows("select Dev_Sn, Dev_Ipaddress, Dev_IPSUM from DevInfo;"),
              Lines{"335653056|192.168.1.21|3232235797"});
}

TEST(DbAddinfo, a_known_one_leaves_others_alone) {
    insert_device("4", "00:1a:2b:3c:4d:5f");
    insert_device("5", mac);
    insert_device("335653056", "00:1a:2b:3c:4d:60");
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), 5);
    EXPECT_EQ(rows(),
              (Lines{"4|00:1a:2b:3c:4d:5f|old", "5|00:1a:2b:3c:4d:5e|reported", "335653056|00:1a:2b:3c:4d:60|old"}));
}

TEST(DbAddinfo, a_row_of_another_device_with_the_number_of_the_address_is_deleted_first) {
    insert_device("335653056", "00:00:00:00:00:99");
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), sn_of_address);
    EXPECT_EQ(rows(), Lines{"335653056|00:1a:2b:3c:4d:5e|reported"});
    EXPECT_EQ(row_where(devices, "1").at(14), "0");
}

TEST(DbAddinfo, two_devices_with_one_address_take_the_row_from_each_other) {
    const DevInfo first = device("00:00:00:00:00:01", "192.168.1.20");
    const DevInfo second = device("00:00:00:00:00:02", "192.168.1.20");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(DB_addinfo(first), sn_of_address);
        EXPECT_EQ(rows(), Lines{"335653056|00:00:00:00:00:01|reported"});
        EXPECT_EQ(DB_addinfo(second), sn_of_address);
        EXPECT_EQ(rows(), Lines{"335653056|00:00:00:00:00:02|reported"});
    }
}

TEST(DbAddinfo, a_row_of_the_mac_address_that_appears_behind_the_lookup_is_replaced) {
    EXPECT_EQ(register_late(device(mac, "192.168.1.20"), [] { insert_device("5", mac); }), sn_of_address);
    EXPECT_EQ(rows(), Lines{"335653056|00:1a:2b:3c:4d:5e|reported"});
}

TEST(DbAddinfo, takes_the_twentieth_access_point) {
    insert_devices(19);
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), sn_of_address);
    EXPECT_EQ(get_devinfo_count(), 20);
}

TEST(DbAddinfo, refuses_the_twenty_first_access_point) {
    insert_devices(20);
    const Lines before = rows();
    const Recorder recorder;
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), -1);
    EXPECT_EQ(recorder.calls({"sqlite3_exec delete", "sqlite3_exec insert", "sqlite3_exec update", "system"}), Lines());
    EXPECT_EQ(rows(), before);
}

TEST(DbAddinfo, tells_that_there_are_too_many_access_points) {
    insert_devices(20);
    Recorder recorder;
    recorder.keep_commands_from_running();
    support::expect_errno(EOVERFLOW, [] { DB_addinfo(device(mac, "192.168.1.20")); });
    support::expect_errno(support::found_errno, [] { DB_addinfo(device("30", "192.168.1.20")); });
}

TEST(DbAddinfo, refreshes_a_known_one_in_a_full_table) {
    insert_devices(20);
    EXPECT_EQ(DB_addinfo(device("30", "192.168.1.20")), 20);
    EXPECT_EQ(rows().back(), "20|30|reported");
    EXPECT_EQ(get_devinfo_count(), 20);
}

TEST(DbAddinfo, refreshes_a_known_one_in_a_table_that_is_too_full) {
    insert_devices(25);
    EXPECT_EQ(DB_addinfo(device("35", "192.168.1.20")), 25);
    EXPECT_EQ(rows().back(), "25|35|reported");
}

TEST(DbAddinfo, in_a_full_table_the_row_of_the_address_makes_way) {
    insert_devices(19);
    insert_device("335653056", "00:00:00:00:00:99");
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), sn_of_address);
    EXPECT_EQ(rows().back(), "335653056|00:1a:2b:3c:4d:5e|reported");
    EXPECT_EQ(get_devinfo_count(), 20);
}

TEST(DbAddinfo, without_a_mac_address_a_row_is_inserted_and_nothing_deleted) {
    insert_device("5", mac);
    const Recorder recorder;
    EXPECT_EQ(DB_addinfo(device("", "192.168.1.20")), sn_of_address);
    EXPECT_EQ(rows(), (Lines{"5|00:1a:2b:3c:4d:5e|old", "335653056||reported"}));
    EXPECT_EQ(recorder.calls({"sqlite3_exec delete"}), Lines());
}

TEST(DbAddinfo, without_a_mac_address_every_row_without_one_is_updated) {
    const auto appear = [] {
        insert_device("5", "");
        insert_device("6", "");
        insert(devices, {{0, "7"}, {2, "old"}});  // NULL is not empty
    };
    EXPECT_EQ(register_late(device("", "192.168.1.20"), appear), sn_of_address);
    EXPECT_EQ(rows(), (Lines{"5||reported", "6||reported", "7|NULL|old", "335653056||reported"}));
}

TEST(DbAddinfo, without_a_mac_address_a_row_without_one_is_a_known_one) {
    insert_device("5", "");
    EXPECT_EQ(DB_addinfo(device("", "192.168.1.20")), 5);
    EXPECT_EQ(rows(), Lines{"5||reported"});
}

TEST(DbAddinfo, five_pairs_of_zeros_are_no_address_to_delete_by) {
    insert_device("335653057", "00:00:00:00:00:99");
    const auto appear = [] { insert_device("5", "00:00:00:00:00"); };
    EXPECT_EQ(register_late(device("00:00:00:00:00", "192.168.1.20"), appear), sn_of_address);
    EXPECT_EQ(rows(), (Lines{"5|00:00:00:00:00|reported", "335653056|00:00:00:00:00|reported",
                             "335653057|00:00:00:00:00:99|old"}));
}

TEST(DbAddinfo, five_pairs_of_zeros_cannot_take_the_row_of_their_address) {
    insert_device("335653056", "00:00:00:00:00:99");
    EXPECT_EQ(DB_addinfo(device("00:00:00:00:00", "192.168.1.20")), -1);
    EXPECT_EQ(rows(), Lines{"335653056|00:00:00:00:00:99|old"});
}

TEST(DbAddinfo, six_pairs_of_zeros_are_an_address) {
    insert_device("335653056", "00:00:00:00:00:99");
    const Recorder recorder;
    EXPECT_EQ(DB_addinfo(device("00:00:00:00:00:00", "192.168.1.20")), sn_of_address);
    EXPECT_EQ(rows(), Lines{"335653056|00:00:00:00:00:00|reported"});
    Lines expected{"sqlite3_exec delete from DevInfo where Dev_Sn='335653056';"};
    if (!at_once) {
        expected.emplace_back("sqlite3_exec delete from DevInfo where Dev_MAC='00:00:00:00:00:00';");
    }
    EXPECT_EQ(recorder.calls({"sqlite3_exec delete"}), expected);
}

TEST(DbAddinfo, a_mac_address_in_two_rows_updates_both_under_the_number_0) {
    insert_device("5", mac);
    insert_device("6", mac);
    const Recorder recorder;
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), 0);
    EXPECT_EQ(rows(), (Lines{"5|00:1a:2b:3c:4d:5e|reported", "6|00:1a:2b:3c:4d:5e|reported"}));
    EXPECT_EQ(recorder.calls({"system"}), Lines{"system /bin/send_event 5 4 add#0 >/dev/null 2>&1 &"});
}

TEST(DbAddinfo, an_address_that_ends_in_128_or_more_gives_a_negative_number) {
    EXPECT_EQ(DB_addinfo(device("00:00:00:00:00:01", "10.0.0.127")), 2130706442);
    EXPECT_EQ(DB_addinfo(device("00:00:00:00:00:02", "10.0.0.128")), -2147483638);
    EXPECT_EQ(DB_addinfo(device("00:00:00:00:00:03", "192.168.1.254")), -33445696);
    EXPECT_EQ(rows(), (Lines{"2130706442|00:00:00:00:00:01|reported", "2147483658|00:00:00:00:00:02|reported",
                             "4261521600|00:00:00:00:00:03|reported"}));
}

TEST(DbAddinfo, a_known_one_with_a_high_number_gives_a_negative_one) {
    insert_device("4261521600", mac);
    const Recorder recorder;
    EXPECT_EQ(DB_addinfo(device(mac, "192.168.1.20")), -33445696);
    EXPECT_EQ(recorder.calls({"system"}), Lines{"system /bin/send_event 5 4 add#4261521600 >/dev/null 2>&1 &"});
}

TEST(DbAddinfo, without_an_ip_address_it_gives_minus_1_although_the_row_is_written) {
    const Recorder recorder;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(DB_addinfo(device(mac, "")), -1);
        EXPECT_EQ(rows(), Lines{"4294967295|00:1a:2b:3c:4d:5e|reported"});
    }
    EXPECT_EQ(recorder.calls({"system"}), Lines(2, "system /bin/send_event 5 4 add#4294967295 >/dev/null 2>&1 &"));
}

TEST(DbAddinfo, a_second_one_without_an_ip_address_finds_no_row_of_its_own) {
    DB_addinfo(device(mac, ""));
    EXPECT_EQ(DB_addinfo(device("00:1a:2b:3c:4d:5f", "")), -1);
    EXPECT_EQ(rows(), Lines{"4294967295|00:1a:2b:3c:4d:5e|reported"});
}

}  // namespace
