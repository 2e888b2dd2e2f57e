// From rows to records: every function that reads a row fills the members that have a column, and nothing else.
#include <gtest/gtest.h>

#include "apinventory/readers.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using places::Place;
using places::put;
using readers::Reader;
using readers::Reading;
using support::Recorder;
using tables::Row;

constexpr char chinese[] = "\xe4\xb8\xad\xe6\x96\x87";
constexpr char chinese_in_gb2312[] = "\xd6\xd0\xce\xc4";

class RowReader : public testing::TestWithParam<Reader> {
protected:
    /// Expects that a row is read as a record.
    static void expect(const Row &row, const DevInfo &expected) {
        insert(GetParam().table, row);
        const Reading reading = GetParam().read();
        EXPECT_EQ(reading.result, GetParam().result);
        EXPECT_EQ(places::difference(expected, reading.record), "");
    }

    static void expect(const Row &row) { expect(row, record_of(GetParam().table, row)); }

    /// Expects a text in every network's SSID, and what is read of it where SSIDs are converted. Those of networks 1
    /// and 5 never are.
    static void expect_ssids(const std::string &stored, const std::string &converted) {
        Row row{{0, GetParam().key}};
        DevInfo record = record_of(GetParam().table, row);
        for (int wlan = 1; wlan <= 8; ++wlan) {
            const Place &ssid = places::named("Dev_Wlan" + std::to_string(wlan) + "_Ssid");
            row[ssid.*GetParam().table.column] = stored;
            put(record, ssid, GetParam().converts && wlan != 1 && wlan != 5 ? converted : stored.substr(0, 99));
        }
        insert(GetParam().table, row);
        EXPECT_EQ(places::text_difference(record, GetParam().read().record), "");
    }

    static Row row() { return numbered_row(GetParam().table, GetParam().key); }
    static Row row_of(const std::string &text) { return uniform_row(GetParam().table, GetParam().key, text); }
};

TEST_P(RowReader, reads_every_member_from_its_column) {
    expect(row());
}

TEST_P(RowReader, null_columns_read_as_empty_texts) {
    expect(Row{{0, GetParam().key}});
}

TEST_P(RowReader, a_value_that_fills_its_member_is_read_whole) {
    Row row{{0, GetParam().key}};
    for (const Place &place : places::all()) {
        const int column = place.*GetParam().table.column;
        if (column > 0 && column < GetParam().table.columns) {
            row[column] = std::string(place.width - 1, 'x');
        }
    }
    expect(row);
}

TEST_P(RowReader, a_value_beyond_its_member_is_cut_at_the_members_width) {
    expect(row_of(std::string(4000, 'x')));
}

TEST_P(RowReader, columns_without_a_member_never_reach_the_record) {
    Row row = row_of("beyond");
    for (const Place &place : places::all()) {
        row.erase(place.*GetParam().table.column);
    }
    row[0] = GetParam().key;
    ASSERT_GE(row.size(), 7U);
    expect(row, record_of(GetParam().table, {{0, GetParam().key}}));
}

TEST_P(RowReader, radius_members_stay_empty) {
    insert(GetParam().table, row());
    const DevInfo record = GetParam().read().record;
    for (const char *name : {"radius_server_ip", "radius_server_port", "radius_shared_key"}) {
        EXPECT_EQ(places::text(record, name), "") << name;
    }
}

TEST_P(RowReader, converts_ssids_to_gb2312_but_those_of_networks_1_and_5) {
    expect_ssids(std::string(chinese) + "-5G", std::string(chinese_in_gb2312) + "-5G");
}

TEST_P(RowReader, an_ssid_as_long_as_its_member_is_converted) {
    std::string stored;
    std::string converted;
    while (stored.size() < 99) {  // the longest that a record holds
        stored += "\xe4\xb8\xad";
        converted += "\xd6\xd0";
    }
    expect_ssids(stored, converted);
}

TEST_P(RowReader, an_ssid_that_is_not_utf_8_stays_as_stored) {
    const support::DeliberateLeak converters(GetParam().converts);
    expect_ssids("ab\xff\xfe cd", "ab\xff\xfe cd");
    support::execute(std::string("delete from ") + GetParam().table.name + ";");
    expect_ssids(chinese_in_gb2312, chinese_in_gb2312);
}

TEST_P(RowReader, an_ssid_that_gb2312_lacks_stays_utf_8_as_a_whole) {
    const support::DeliberateLeak converters(GetParam().converts);
    expect_ssids(std::string(chinese) + "\xf0\x9f\x93\xb6", std::string(chinese) + "\xf0\x9f\x93\xb6");
}

TEST_P(RowReader, an_ssid_that_is_cut_within_a_character_stays_utf_8) {
    const support::DeliberateLeak converters(GetParam().converts);
    std::string stored = "a";
    while (stored.size() < 99) {
        stored += chinese;
    }
    expect_ssids(stored, stored.substr(0, 99));
}

TEST_P(RowReader, an_empty_ssid_stays_empty) {
    expect_ssids("", "");
}

TEST_P(RowReader, converts_six_ssids_of_a_row_or_none) {
    insert(GetParam().table, row());
    Recorder recorder;
    GetParam().read();
    const std::size_t converters = support::build_profile.shares_converter ? 1 : 6;
    EXPECT_EQ(recorder.calls({"iconv_open"}),
              std::vector<std::string>(GetParam().converts ? converters : 0, "iconv_open gb2312 utf-8"));
}

TEST_P(RowReader, without_a_converter_ssids_stay_utf_8) {
    Recorder recorder;
    recorder.answer("iconv_open", {0, 0, 0, 0, 0, 0});
    expect_ssids(chinese, chinese);
    EXPECT_EQ(recorder.calls({"syslog"}), std::vector<std::string>(GetParam().converts ? 6 : 0, "syslog 3 error1\n"));
}

TEST_P(RowReader, a_converter_that_cannot_be_made_leaves_utf_8_in_silence) {
    Recorder recorder;
    recorder.answer("iconv_open", {-1, -1, -1, -1, -1, -1});
    expect_ssids(chinese, chinese);
    EXPECT_EQ(recorder.calls({"syslog"}), std::vector<std::string>{});
}

/// Those that read one row of several.
class KeyedReader : public RowReader {};

TEST_P(KeyedReader, finds_its_row_among_others) {
    insert(GetParam().table, uniform_row(GetParam().table, GetParam().other_key, "x"));
    insert(GetParam().table, uniform_row(GetParam().table, "9", "y"));
    expect(row());
}

TEST_P(KeyedReader, a_row_that_does_not_exist_leaves_a_zero_record) {
    insert(GetParam().table, uniform_row(GetParam().table, GetParam().other_key, "x"));
    const Reading reading = GetParam().read();
    EXPECT_EQ(reading.result, GetParam().result_without_row);
    EXPECT_EQ(places::difference(DevInfo{}, reading.record), "");
}

std::vector<Reader> keyed_readers() {
    std::vector<Reader> keyed;
    for (const Reader &reader : readers::all()) {
        if (!reader.other_key.empty()) {
            keyed.push_back(reader);
        }
    }
    return keyed;
}

INSTANTIATE_TEST_SUITE_P(All, RowReader, testing::ValuesIn(readers::all()), testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(All, KeyedReader, testing::ValuesIn(keyed_readers()), testing::PrintToStringParamName());

}  // namespace
