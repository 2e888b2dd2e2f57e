// Reading access points: DB_getinfo, GetApDevList, and releasing the list.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "apinventory/tables.h"
#include "core/holdings.h"
#include "support/database.h"
#include "support/failing_readings.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using tables::devices;
using Lines = std::vector<std::string>;

/// An access point with a name and a number for its place in the order.
void insert_device(const std::string &sn, const std::string &name, const std::string &order) {
    insert(devices, {{0, sn}, {2, name}, {155, order}});
}

/// A list, which is too big for some stacks, whose bytes are odd.
std::unique_ptr<ApDevList> odd_list() {
    auto list = std::make_unique<ApDevList>();
    std::memset(static_cast<void *>(list.get()), 0x5a, sizeof(ApDevList));
    return list;
}

std::string bytes_of(const ApDevList &list) {
    return {reinterpret_cast<const char *>(&list), sizeof(list)};
}

/// The names in a list, which is released.
Lines names_in(ApDevList &list) {
    Lines names;
    for (uint32_t i = 0; i < list.count; ++i) {
        names.push_back(places::text(*list.devices[i], "Dev_Name"));
    }
    FreeApDevList(&list);
    return names;
}

TEST(DbGetinfo, a_serial_number_without_a_row_yields_0_and_a_zero_record) {
    insert_device("1", "other", "1");
    DevInfo record = places::odd_record();
    EXPECT_EQ(DB_getinfo(&record, 2, 0), 0);
    EXPECT_EQ(places::difference(DevInfo{}, record), "");
}

TEST(DbGetinfo, asks_for_the_number_without_a_sign) {
    insert_device("4294967295", "highest", "1");
    const Recorder recorder;
    DevInfo record;
    EXPECT_EQ(DB_getinfo(&record, 4294967295UL, 0), 1);
    EXPECT_EQ(record.Dev_Sn, 4294967295U);
    EXPECT_EQ(places::text(record, "Dev_Name"), "highest");
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}),
              Lines{"sqlite3_prepare_v2 select * from DevInfo where Dev_Sn='4294967295';"});
}

TEST(DbGetinfo, a_null_address_reads_as_an_empty_text) {
    tables::Row row = numbered_row(devices, "7");
    row.erase(3);
    insert(devices, row);
    DevInfo record;
    EXPECT_EQ(DB_getinfo(&record, 7, 0), 1);
    EXPECT_EQ(places::text(record, "Dev_Ipaddress"), "");
    EXPECT_EQ(places::text(record, "Dev_Subnet"), "c4");
}

TEST(DbGetinfo, of_several_rows_it_counts_all_and_keeps_the_last) {
    support::execute(
        "create table Copy as select * from DevInfo; drop table DevInfo;"  // without a key
        "alter table Copy rename to DevInfo;");
    insert(devices, {{0, "7"}, {1, "first"}, {2, "first"}});
    insert(devices, {{0, "7"}, {2, "last"}});
    DevInfo record;
    EXPECT_EQ(DB_getinfo(&record, 7, 0), 2);
    EXPECT_EQ(places::text(record, "Dev_Name"), "last");
    EXPECT_EQ(places::text(record, "Dev_Group"), "");
}

TEST(DbGetinfo, converts_ssids_for_1_only) {
    insert(devices, {{0, "7"}, {30, "\xe4\xb8\xad"}});
    for (const auto &[convert, ssid] : std::vector<std::pair<int, std::string>>{
             {1, "\xd6\xd0"}, {0, "\xe4\xb8\xad"}, {2, "\xe4\xb8\xad"}, {-1, "\xe4\xb8\xad"}}) {
        DevInfo record;
        DB_getinfo(&record, 7, convert);
        EXPECT_EQ(places::text(record, "Dev_Wlan2_Ssid"), ssid) << convert;
        ApDevList list;
        GetApDevList(&list, convert);
        EXPECT_EQ(places::text(*list.devices[0], "Dev_Wlan2_Ssid"), ssid) << convert;
        FreeApDevList(&list);
    }
}

TEST(GetApDevList, lists_in_order_of_the_addresses_numbers) {
    insert_device("3", "second", "9");
    insert_device("1", "third", "10");
    insert_device("2", "first", "-1");
    insert_device("4", "fourth", "3232235796");
    ApDevList list;
    EXPECT_EQ(GetApDevList(&list, 0), 1);
    EXPECT_EQ(names_in(list), (Lines{"first", "second", "third", "fourth"}));
}

TEST(GetApDevList, an_empty_table_gives_0_and_a_zero_list) {
    auto list = odd_list();
    EXPECT_EQ(GetApDevList(list.get(), 0), 0);
    EXPECT_EQ(bytes_of(*list), std::string(sizeof(ApDevList), '\0'));
}

TEST(GetApDevList, slots_behind_the_count_are_null) {
    insert_device("1", "a", "1");
    auto list = odd_list();
    EXPECT_EQ(GetApDevList(list.get(), 0), 1);
    EXPECT_EQ(list->count, 1U);
    for (std::size_t i = 1; i < 1000; ++i) {
        ASSERT_EQ(list->devices[i], nullptr) << i;
    }
    FreeApDevList(list.get());
}

TEST(GetApDevList, counts_the_rows_under_the_lock_and_reads_them_without) {
    insert_device("1", "a", "1");
    Recorder recorder;
    Holdings holdings(recorder);
    ApDevList list;
    GetApDevList(&list, 0);
    EXPECT_EQ(holdings.changes(),
              (Lines{"sqlite3_open /etc/config/systemconf/database/myrouter.db: lock", "close lock file: nothing"}));
    FreeApDevList(&list);
}

TEST(GetApDevList, without_the_lock_file_it_leaves_the_list_as_it_was) {
    insert_device("1", "a", "1");
    ASSERT_EQ(std::remove(support::lock_file), 0);
    auto list = odd_list();
    const support::Streams::Text said = support::streams_of([&] { EXPECT_EQ(GetApDevList(list.get(), 0), 0); });
    EXPECT_EQ(said.error, support::cannot_open_lock_file);
    EXPECT_EQ(said.output, "");
    EXPECT_EQ(bytes_of(*list), bytes_of(*odd_list()));
}

TEST(GetApDevList, without_the_table_it_leaves_the_list_as_it_was) {
    drop(devices);
    auto list = odd_list();
    const support::Streams::Text said = support::streams_of([&] { EXPECT_EQ(GetApDevList(list.get(), 0), 0); });
    EXPECT_EQ(said.output, "cannot exec sql cmdline, Error: (null)\n");
    EXPECT_EQ(said.error, "");
    EXPECT_EQ(bytes_of(*list), bytes_of(*odd_list()));
}

TEST(GetApDevList, once_the_rows_are_counted_the_list_is_cleared_also_by_a_failure) {
    insert_device("1", "a", "1");
    Recorder recorder;
    support::fail_opening(recorder, 2);
    auto list = odd_list();
    support::streams_of([&] { EXPECT_EQ(GetApDevList(list.get(), 0), 0); });
    EXPECT_EQ(bytes_of(*list), std::string(sizeof(ApDevList), '\0'));
    support::fail_beginning(recorder, "sqlite3_prepare_v2", 2, SQLITE_ERROR);
    list = odd_list();
    EXPECT_EQ(GetApDevList(list.get(), 0), 0);
    EXPECT_EQ(bytes_of(*list), std::string(sizeof(ApDevList), '\0'));
}

TEST(GetApDevList, lists_no_more_access_points_than_it_has_room_for) {
    support::execute(
        "insert into DevInfo(Dev_Sn, Dev_IPSUM) "
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 1001) select i, i from n;");
    auto list = odd_list();
    EXPECT_EQ(GetApDevList(list.get(), 0), 1);
    EXPECT_EQ(list->count, 1000U);
    EXPECT_EQ(list->devices[999]->Dev_Sn, 1000U);
    FreeApDevList(list.get());
}

}  // namespace
