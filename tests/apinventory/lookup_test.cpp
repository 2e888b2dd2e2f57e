// Looking an access point up by its MAC address: DB_findinfo2, and DB_findinfo, which makes way for a new one.
#include <gtest/gtest.h>

#include "apinventory/tables.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/failing_readings.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using places::put;
using support::Recorder;
using tables::devices;
using Lines = std::vector<std::string>;

constexpr char mac[] = "00:1a:2b:3c:4d:5e";
constexpr unsigned long sn_of_address = 335653056;  // of 192.168.1.20
constexpr char lookup[] = "sqlite3_prepare_v2 select Dev_Sn  from DevInfo where Dev_MAC='00:1a:2b:3c:4d:5e';";
constexpr char lookup_of_sn[] = "sqlite3_prepare_v2 select Dev_Sn from  DevInfo where Dev_MAC='00:1a:2b:3c:4d:5e';";
constexpr const char *lookup_of_holder = support::build_profile.names_needed_columns
                                             ? "sqlite3_prepare_v2 select 1 from DevInfo where Dev_Sn='335653056';"
                                             : "sqlite3_prepare_v2 select *  from DevInfo where Dev_Sn='335653056';";

DevInfo device(const std::string &mac_address = mac, const std::string &address = "192.168.1.20") {
    DevInfo device{};
    put(device, "Dev_MAC", mac_address);
    put(device, "Dev_Ipaddress", address);
    return device;
}

void insert_device(const std::string &sn, const std::string &mac_address) {
    insert(devices, {{0, sn}, {8, mac_address}});
}

/// A lookup 16 times, with a sleep between any two.
Lines sixteen_lookups(const std::string &line = lookup) {
    Lines lines{line};
    for (int i = 1; i < 16; ++i) {
        lines.insert(lines.end(), {"usleep 100", line});
    }
    return lines;
}

Lines shown(const Recorder &recorder) {
    return recorder.calls({"sqlite3_prepare_v2", "sqlite3_exec delete", "usleep", "system"});
}

/// What a lookup gives.
struct Found {
    int result;
    unsigned long sn;  // 9 if it is left as it was
};

Found find2(const DevInfo &sought) {
    Found found{0, 9};
    found.result = DB_findinfo2(sought, &found.sn);
    return found;
}

Found find(const DevInfo &sought) {
    Found found{0, 9};
    found.result = DB_findinfo(sought, &found.sn);
    return found;
}

bool operator==(const Found &left, const Found &right) {
    return left.result == right.result && left.sn == right.sn;
}

std::ostream &operator<<(std::ostream &stream, const Found &found) {
    return stream << found.result << ", " << found.sn;
}

/// Inserts the access point when something is called for the n-th time.
void appears(Recorder &recorder, const std::string &call, int n) {
    recorder.watch([call, n, calls = 0](const std::string &line) mutable {
        if (line == call && ++calls == n) {
            insert_device("5", mac);
        }
    });
}

TEST(DbFindinfo2, without_a_mac_address_it_asks_nothing) {
    insert_device("5", "");
    const Recorder recorder;
    EXPECT_EQ(find2(device("")), (Found{-1, 9}));
    EXPECT_EQ(recorder.calls(), Lines());
}

TEST(DbFindinfo2, finds_a_known_one_at_once) {
    insert_device("4", "00:1a:2b:3c:4d:5f");
    insert_device("5", mac);
    const Recorder recorder;
    EXPECT_EQ(find2(device()), (Found{1, 5}));
    EXPECT_EQ(shown(recorder), (Lines{lookup, lookup_of_sn}));
}

TEST(DbFindinfo2, looks_sixteen_times_and_sleeps_behind_each) {
    const Recorder recorder;
    EXPECT_EQ(find2(device()), (Found{0, 9}));
    Lines expected = sixteen_lookups();
    expected.emplace_back("usleep 100");
    EXPECT_EQ(shown(recorder), expected);
}

TEST(DbFindinfo2, finds_one_that_appears_while_it_looks) {
    Recorder recorder;
    appears(recorder, "usleep 100", 2);
    EXPECT_EQ(find2(device()), (Found{1, 5}));
    EXPECT_EQ(shown(recorder), (Lines{lookup, "usleep 100", lookup, "usleep 100", lookup, lookup_of_sn}));
}

TEST(DbFindinfo2, a_failing_lookup_is_tried_again) {
    insert_device("5", mac);
    Recorder recorder;
    recorder.answer("sqlite3_open", {SQLITE_CANTOPEN, SQLITE_CANTOPEN});
    EXPECT_EQ(find2(device()), (Found{1, 5}));
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{100, 100}));
    EXPECT_EQ(recorder.calls({"syslog"}),
              Lines(2, "syslog 3 cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n"));
}

TEST(DbFindinfo2, one_that_cannot_be_looked_up_counts_as_unknown) {
    insert_device("5", mac);
    drop(devices);
    EXPECT_EQ(find2(device()), (Found{0, 9}));
    tables::make_unopenable();
    const support::DeliberateLeak connections;
    EXPECT_EQ(find2(device()), (Found{0, 9}));
}

TEST(DbFindinfo2, knows_addresses_of_zeros_like_any_other) {
    insert_device("5", "00:00:00:00:00");
    insert_device("6", "00:00:00:00:00:00");
    EXPECT_EQ(find2(device("00:00:00:00:00")), (Found{1, 5}));
    EXPECT_EQ(find2(device("00:00:00:00:00:00")), (Found{1, 6}));
}

TEST(DbFindinfo, finds_a_known_one_at_once_and_takes_its_number) {
    insert_device("5", mac);
    const Recorder recorder;
    EXPECT_EQ(find(device()), (Found{1, 5}));
    EXPECT_EQ(shown(recorder), (Lines{lookup, lookup_of_sn}));
}

TEST(DbFindinfo, a_known_one_whose_number_cannot_be_read_has_that_of_its_address) {
    insert_device("5", mac);
    Recorder recorder;
    support::fail_opening(recorder, 2);
    EXPECT_EQ(find(device()), (Found{1, sn_of_address}));
}

TEST(DbFindinfo, looks_sixteen_times_with_fifteen_sleeps_before_one_is_new) {
    const Recorder recorder;
    EXPECT_EQ(find(device()), (Found{0, sn_of_address}));
    Lines expected = sixteen_lookups();
    expected.emplace_back(lookup_of_holder);
    EXPECT_EQ(shown(recorder), expected);
}

TEST(DbFindinfo, finds_one_that_appears_before_the_last_lookup) {
    Recorder recorder;
    appears(recorder, "usleep 100", 15);
    EXPECT_EQ(find(device()), (Found{1, 5}));
    EXPECT_EQ(shown(recorder).size(), 32U);
}

TEST(DbFindinfo, the_number_of_a_new_one_is_its_address_in_network_order) {
    for (const auto &[address, sn] : std::initializer_list<std::pair<const char *, unsigned long>>{
             {"1.0.0.0", 1}, {"10.1.2.3", 50462986}, {"0.0.0.128", 2147483648}, {"", 4294967295}, {"x", 4294967295}}) {
        EXPECT_EQ(find(device(mac, address)), (Found{0, sn})) << address;
    }
}

TEST(DbFindinfo, the_last_lookup_decides_whether_it_failed) {
    Recorder recorder;
    for (int i = 0; i < 15; ++i) {
        recorder.answer("sqlite3_open", {SQLITE_CANTOPEN});
    }
    EXPECT_EQ(find(device()), (Found{0, sn_of_address}));
    support::fail_opening(recorder, 16);
    EXPECT_EQ(find(device()), (Found{-1, sn_of_address}));
}

TEST(DbFindinfo, a_statement_that_cannot_be_prepared_finds_nobody) {
    drop(devices);
    EXPECT_EQ(find(device()), (Found{0, sn_of_address}));
}

TEST(DbFindinfo, deletes_the_row_of_another_device_that_had_the_address) {
    insert_device("335653056", "00:00:00:00:00:99");
    insert_device("335653057", "00:00:00:00:00:98");
    const Recorder recorder;
    EXPECT_EQ(find(device()), (Found{0, sn_of_address}));
    Lines expected = sixteen_lookups();
    expected.insert(expected.end(), {lookup_of_holder, "sqlite3_exec delete from DevInfo where Dev_Sn='335653056';"});
    EXPECT_EQ(shown(recorder), expected);
    EXPECT_EQ(support::Database().rows("select Dev_Sn from DevInfo;"), Lines{"335653057"});
}

TEST(DbFindinfo, a_known_one_leaves_the_row_of_its_new_address_alone) {
    insert_device("5", mac);
    insert_device("335653056", "00:00:00:00:00:99");
    EXPECT_EQ(find(device()), (Found{1, 5}));
    EXPECT_EQ(get_devinfo_count(), 2);
}

TEST(DbFindinfo, without_mac_or_ip_address_nobody_makes_way) {
    for (const char *number : {"335653056", "4294967295"}) {
        insert_device(number, "00:00:00:00:00:99");
    }
    const Recorder recorder;
    EXPECT_EQ(find(device("")), (Found{0, sn_of_address}));
    EXPECT_EQ(find(device(mac, "")), (Found{0, 4294967295}));
    EXPECT_EQ(shown(recorder).size(), 2U * 31);
    EXPECT_EQ(get_devinfo_count(), 2);
}

TEST(DbFindinfo, five_pairs_of_zeros_count_as_no_address_and_six_as_one) {
    insert_device("335653056", "00:00:00:00:00:99");
    EXPECT_EQ(find(device("00:00:00:00:00")), (Found{0, sn_of_address}));
    EXPECT_EQ(get_devinfo_count(), 1);
    EXPECT_EQ(find(device("00:00:00:00:00:00")), (Found{0, sn_of_address}));
    EXPECT_EQ(get_devinfo_count(), 0);
}

TEST(DbFindinfo, a_longer_text_of_zeros_is_an_address) {
    for (const char *address : {"00:00:00:00:00:", "00:00:00:00:0", "00:00:00:00:000"}) {
        insert_device("335653056", "00:00:00:00:00:99");
        find(device(address));
        EXPECT_EQ(get_devinfo_count(), 0) << address;
    }
}

TEST(DbFindinfo, when_the_holder_cannot_be_looked_up_it_stays) {
    insert_device("335653056", "00:00:00:00:00:99");
    Recorder recorder;
    support::fail_opening(recorder, 17);
    EXPECT_EQ(find(device()), (Found{0, sn_of_address}));
    EXPECT_EQ(recorder.calls({"sqlite3_exec"}), Lines());
}

TEST(DbFindinfo, a_failing_deletion_is_not_noticed) {
    insert_device("335653056", "00:00:00:00:00:99");
    Recorder recorder;
    recorder.answer("sqlite3_exec", {Recorder::really, Recorder::really, Recorder::really, SQLITE_ERROR});
    const support::Streams::Text said = support::streams_of([] {
        EXPECT_EQ(find(device()), (Found{0, sn_of_address}));
    });
    EXPECT_EQ(said.output, "cannot exec sql cmdline, Error: planned 1\n");
    EXPECT_EQ(get_devinfo_count(), 1);
}

TEST(Lookups, double_apostrophes_in_the_mac_address) {
    insert_device("5", "a'b''c' or '1'='1");
    const Recorder recorder;
    EXPECT_EQ(find(device("a'b''c' or '1'='1")), (Found{1, 5}));
    EXPECT_EQ(find2(device("a'b''c' or '1'='1")), (Found{1, 5}));
    const Lines once{"sqlite3_prepare_v2 select Dev_Sn  from DevInfo where Dev_MAC='a''b''''c'' or ''1''=''1';",
                     "sqlite3_prepare_v2 select Dev_Sn from  DevInfo where Dev_MAC='a''b''''c'' or ''1''=''1';"};
    Lines twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(shown(recorder), twice);
}

TEST(Lookups, read_an_address_that_fills_its_member) {
    insert_device("5", "0123456789abcdefghij");
    EXPECT_EQ(find(device("0123456789abcdefghij")), (Found{1, 5}));
    EXPECT_EQ(find2(device("0123456789abcdefghij")), (Found{1, 5}));
}

TEST(Lookups, an_address_in_two_rows_has_the_number_0) {
    insert_device("5", mac);
    insert_device("6", mac);
    EXPECT_EQ(find(device()), (Found{1, 0}));
    EXPECT_EQ(find2(device()), (Found{1, 0}));
}

}  // namespace
