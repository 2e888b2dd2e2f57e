#include "apinventory/readers.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/profile.h"

namespace readers {

namespace {

using support::build_profile;
using Lines = std::vector<std::string>;

constexpr char open_main_database[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";
constexpr int length_of_open_message = 72;

void append(Lines &lines, const Lines &more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

Reading read_device(int convert) {
    Reading reading{0, places::odd_record()};
    reading.result = DB_getinfo(&reading.record, 7, convert);
    return reading;
}

/// The first record of the list; a zero one if there is none.
Reading read_first_of_list(int convert) {
    ApDevList list{};
    Reading reading{GetApDevList(&list, convert), {}};
    if (list.count != 0) {
        reading.record = *list.devices[0];
    }
    FreeApDevList(&list);
    return reading;
}

Reading read_wlan_group() {
    Reading reading{0, places::odd_record()};
    reading.result = DB_getwlangroupinfoByindex(&reading.record, 7);
    return reading;
}

Reading read_default_group() {
    Reading reading{0, places::odd_record()};
    reading.result = DB_getwlanzerocfggroupinfo(&reading.record);
    return reading;
}

Reading read_zero_config_group() {
    Reading reading{0, places::odd_record()};
    reading.result = DB_getwlanzerocfggroupinfoByindex(&reading.record, 7);
    return reading;
}

Reader device_reader(int convert) {
    Reader reader{{convert == 1 ? "DB_getinfo_in_GB2312" : "DB_getinfo"}};
    reader.key = "7";
    reader.other_key = "8";
    reader.converts = convert == 1;
    reader.read = [convert] { return read_device(convert); };
    reader.query = "select * from DevInfo where Dev_Sn='7';";
    reader.first_sleep = 55;
    reader.told_when_unopenable = Listener::system_log;
    reader.told_when_unpreparable = Listener::system_log;
    reader.error_without_table = "no such table: DevInfo";
    reader.result = 1;
    return reader;
}

Reader list_reader(int convert) {
    Reader reader = device_reader(convert);
    reader.name = convert == 1 ? "GetApDevList_in_GB2312" : "GetApDevList";
    reader.other_key = "";
    reader.read = [convert] { return read_first_of_list(convert); };
    reader.calls_before = {"open lock file", "draw", "lock", open_main_database};
    append(reader.calls_before, build_profile.skips_unseen_rows
                                    ? Lines{"sqlite3_prepare_v2 select 1 from DevInfo;", "sqlite3_finalize"}
                                    : Lines{"sqlite3_prepare_v2 select  * from DevInfo;", "sqlite3_step",
                                            "sqlite3_step", "sqlite3_finalize"});
    reader.opens = !build_profile.shares_connection;
    append(reader.calls_before, reader.opens ? Lines{"sqlite3_close"} : Lines{});
    append(reader.calls_before, {"unlock", "close lock file"});
    reader.query = "select * from DevInfo  order by Dev_IPSUM ;";
    reader.told_when_unopenable = Listener::standard_error;
    return reader;
}

Reader wlan_group_reader() {
    Reader reader{{"DB_getwlangroupinfoByindex"}};
    reader.table = tables::wlan_groups;
    reader.key = "7";
    reader.other_key = "8";
    reader.converts = true;
    reader.read = read_wlan_group;
    reader.query = "select * from WlanGroupInfo where WlanGroup_Id='7';";
    reader.first_sleep = 55;
    reader.told_when_unopenable = Listener::standard_error;
    reader.told_when_unpreparable = Listener::standard_output;
    reader.error_without_table = "no such table: WlanGroupInfo";
    reader.result_when_unopenable = length_of_open_message;
    return reader;
}

Reader default_group_reader() {
    Reader reader = wlan_group_reader();
    reader.name = "DB_getwlanzerocfggroupinfo";
    reader.table = tables::zero_config_groups;
    reader.key = "1";
    reader.other_key = "2";
    reader.read = read_default_group;
    reader.calls_before = {open_main_database, "sqlite3_prepare_v2 select *  from WlanZeroCfgGroupInfo;",
                           "sqlite3_step", "sqlite3_step", "sqlite3_finalize"};
    reader.opens = !build_profile.shares_connection;
    append(reader.calls_before, reader.opens ? Lines{"sqlite3_close"} : Lines{});
    reader.query = "select * from WlanZerocfgGroupInfo where WlanGroup_Id='1';";
    reader.error_without_table = "no such table: WlanZerocfgGroupInfo";
    reader.result = 1;
    reader.result_without_row = 1;
    reader.result_when_unpreparable = 1;
    return reader;
}

Reader zero_config_group_reader() {
    Reader reader = wlan_group_reader();
    reader.name = "DB_getwlanzerocfggroupinfoByindex";
    reader.table = tables::zero_config_groups;
    reader.converts = false;
    reader.read = read_zero_config_group;
    reader.calls_before = {"draw"};
    reader.query = "select * from WlanZeroCfgGroupInfo where WlanGroup_Id='7';";
    reader.first_sleep = 56;
    reader.error_without_table = "no such table: WlanZeroCfgGroupInfo";
    reader.result_when_unopenable = -1;
    return reader;
}

}  // namespace

std::vector<Reader> all() {
    return {device_reader(0),       device_reader(1),          list_reader(0), list_reader(1), wlan_group_reader(),
            default_group_reader(), zero_config_group_reader()};
}

std::size_t calls_before(const Reader &reader, const std::string &function) {
    return static_cast<std::size_t>(
        std::count_if(reader.calls_before.begin(), reader.calls_before.end(),
                      [&](const std::string &line) { return line.compare(0, function.size(), function) == 0; }));
}

}  // namespace readers
