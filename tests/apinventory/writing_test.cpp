// From records to rows: the statements of registration and configuration as a whole, and what they make of the row.
#include <gtest/gtest.h>

#include "apinventory/device_statements.h"
#include "apinventory/writers.h"
#include "support/database.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using places::put;
using statements::sample_device;
using support::Recorder;
using tables::Row;
using writers::Writer;
using Lines = std::vector<std::string>;

constexpr char address_as_number[] = "3232235796";

class RowWriter : public testing::TestWithParam<Writer> {
protected:
    /// Writes a record into the row that there has to be for it.
    /// @return the updates that are executed
    static Lines updates_by(const DevInfo &device) {
        prepare(GetParam(), device);
        Recorder recorder;
        recorder.keep_commands_from_running();
        GetParam().write(device);
        return recorder.calls({"sqlite3_exec update"});
    }

    static void expect_row(Row expected, const std::string &sn, const std::string &order) {
        expected[0] = sn;
        expected[155] = order;
        EXPECT_EQ(tables::difference(expected, writers::only_row()), "");
    }
};

TEST_P(RowWriter, writes_with_one_statement) {
    EXPECT_EQ(updates_by(sample_device()), Lines{"sqlite3_exec " + GetParam().statement("8", 8)});
}

TEST_P(RowWriter, every_value_reaches_its_column_and_no_other) {
    const DevInfo device = sample_device();
    updates_by(device);
    expect_row(written(GetParam(), device), GetParam().takes_new ? "335653056" : "77", address_as_number);
}

TEST_P(RowWriter, writes_as_many_networks_as_the_count_says) {
    const std::pair<std::string, int> counts[] = {{"1", 1}, {"4", 4}, {"5", 5}, {"7", 7}, {"8", 8}, {" 2x", 2}};
    for (const auto &[count, wlans] : counts) {
        EXPECT_EQ(updates_by(sample_device(count)), Lines{"sqlite3_exec " + GetParam().statement(count, wlans)});
    }
}

TEST_P(RowWriter, a_count_of_0_or_less_or_none_writes_no_networks) {
    for (const char *count : {"0", "", "-1", "-128", "x", "x8"}) {
        EXPECT_EQ(updates_by(sample_device(count)), Lines{"sqlite3_exec " + GetParam().statement(count, 0)});
    }
}

TEST_P(RowWriter, a_count_above_8_writes_eight_networks) {
    for (const char *count : {"9", "12", "255", "9999", "12345"}) {  // the last one has no terminator
        EXPECT_EQ(updates_by(sample_device(count)), Lines{"sqlite3_exec " + GetParam().statement(count, 8)});
    }
}

TEST_P(RowWriter, values_that_fill_their_members_are_written_whole) {
    DevInfo device = places::record_of(std::string(places::record_size, 'x'));
    put(device, "Dev_Wlan_Radio_Num", "8");
    put(device, "Dev_Wlan_Txpower", "00100");
    put(device, "Dev_Wlan_Txpower_sec", "00010");
    updates_by(device);
    const Row expected = written(GetParam(), device);
    ASSERT_EQ(expected.at(18), std::string(100, 'x'));
    expect_row(expected, GetParam().takes_new ? "4294967295" : "2021161080", "4294967295");
}

TEST_P(RowWriter, apostrophes_are_doubled_and_read_back_as_they_were) {
    DevInfo device = places::record_of(std::string(places::record_size, '\''));
    put(device, "Dev_Wlan_Radio_Num", "8");
    put(device, "Dev_Wlan_Txpower", "10'''");
    put(device, "Dev_Wlan_Txpower_sec", "20'");
    updates_by(device);
    expect_row(written(GetParam(), device), GetParam().takes_new ? "4294967295" : "656877351", "4294967295");
}

TEST_P(RowWriter, a_value_is_never_sql) {
    insert(tables::devices, {{0, "5"}, {2, "bystander"}});
    DevInfo device = sample_device();
    put(device, "Dev_Subnet", "';delete from DevI");
    put(device, "Dev_Wlan1_Psk_Value", "', Dev_Name='got you' where 1; --");
    if (!GetParam().takes_new) {
        insert(tables::devices, {{0, "77"}, {8, "00:1a:2b:3c:4d:5e"}});
    }
    GetParam().write(device);
    const Row row = row_where(tables::devices, "Dev_MAC='00:1a:2b:3c:4d:5e'");
    EXPECT_EQ(row.at(4), "';delete from DevI");
    EXPECT_EQ(row.at(27), "', Dev_Name='got you' where 1; --");
    EXPECT_EQ(row_where(tables::devices, "Dev_Sn=5"), (Row{{0, "5"}, {2, "bystander"}}));
}

TEST_P(RowWriter, an_address_that_is_none_is_ordered_last) {
    for (const char *address : {"", "x", "1.2.3.4.5", "300.1.1.1"}) {
        DevInfo device = sample_device();
        put(device, "Dev_Ipaddress", address);
        updates_by(device);
        EXPECT_EQ(writers::only_row().at(155), "4294967295") << address;
    }
}

TEST_P(RowWriter, the_order_follows_the_address_in_host_order) {
    const std::pair<const char *, const char *> addresses[] = {
        {"0.0.0.0", "0"}, {"1.2.3.4", "16909060"}, {"10.0.0.255", "167772415"}, {"255.255.255.255", "4294967295"}};
    for (const auto &[address, order] : addresses) {
        DevInfo device = sample_device();
        put(device, "Dev_Ipaddress", address);
        updates_by(device);
        EXPECT_EQ(writers::only_row().at(155), order) << address;
    }
}

INSTANTIATE_TEST_SUITE_P(All, RowWriter, testing::ValuesIn(writers::all()), testing::PrintToStringParamName());

}  // namespace
