// SSIDs on their way into the table: the first network of each radio is never converted.
#include <gtest/gtest.h>

#include "apinventory/device_statements.h"
#include "apinventory/writers.h"
#include "support/deliberate_leak.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using statements::sample_device;
using support::Recorder;
using tables::Row;
using writers::Writer;
using Lines = std::vector<std::string>;

constexpr char gb2312[] = "\xd6\xd0\xce\xc4";
constexpr char utf8[] = "\xe4\xb8\xad\xe6\x96\x87";

class SsidWriter : public testing::TestWithParam<Writer> {
protected:
    /// Writes a record with the same SSID for all networks, and expects that one in the columns of networks 1 and 5,
    /// `converted` in the others; in all of them if the writer does not convert.
    static void expect(const std::string &reported, const std::string &converted) {
        DevInfo device = sample_device();
        for (int wlan = 1; wlan <= 8; ++wlan) {
            places::put(device, "Dev_Wlan" + std::to_string(wlan) + "_Ssid", reported);
        }
        prepare(GetParam(), device);
        GetParam().write(device);
        const Row row = writers::only_row();
        for (const auto &[wlan, column] :
             {std::pair(1, 18), {2, 30}, {3, 42}, {4, 54}, {5, 66}, {6, 78}, {7, 90}, {8, 102}}) {
            const bool converts = GetParam().converts && wlan != 1 && wlan != 5;
            EXPECT_EQ(row.at(column), converts ? converted : reported) << "network " << wlan;
        }
    }

    /// The converters that a record with this count of networks takes.
    static std::size_t converters_for(const std::string &wlan_count) {
        const DevInfo device = sample_device(wlan_count);
        prepare(GetParam(), device);
        const Recorder recorder;
        GetParam().write(device);
        EXPECT_EQ(recorder.calls({"iconv_open"}), recorder.calls({"iconv_open utf-8 gb2312"}));
        EXPECT_EQ(recorder.calls({"iconv_open"}).size(), recorder.calls({"iconv_close"}).size());
        return recorder.calls({"iconv_open"}).size();
    }
};

TEST_P(SsidWriter, converts_from_gb2312_but_not_networks_1_and_5) {
    expect(std::string(gb2312) + "-5G", std::string(utf8) + "-5G");
}

TEST_P(SsidWriter, plain_and_empty_ssids_stay_as_they_are) {
    expect("plain", "plain");
    expect("", "");
}

TEST_P(SsidWriter, an_ssid_that_is_not_gb2312_is_written_empty) {
    const support::DeliberateLeak converters(GetParam().converts);
    expect("ab\xff\xfe cd", "");
    expect("ends within a character \xd6", "");
    expect(utf8, "");
}

TEST_P(SsidWriter, apostrophes_are_doubled_behind_the_conversion) {
    expect(std::string("it's ") + gb2312, std::string("it's ") + utf8);
    expect("'''", "'''");
}

TEST_P(SsidWriter, an_ssid_without_a_terminator_grows_beyond_its_member_and_is_written_whole) {
    std::string reported;
    std::string converted;
    while (reported.size() < 100) {
        reported += gb2312;
        converted += utf8;
    }
    ASSERT_EQ(converted.size(), 150U);
    expect(reported, converted);
}

TEST_P(SsidWriter, without_a_converter_ssids_are_written_empty) {
    Recorder recorder;
    recorder.answer("iconv_open", {0, 0, 0, 0, 0, 0});
    expect("plain", "");
    EXPECT_EQ(recorder.calls({"syslog"}), Lines(GetParam().converts ? 6 : 0, "syslog 3 gb2312toutf8 error1\n"));
}

TEST_P(SsidWriter, a_converter_that_cannot_be_made_writes_ssids_empty_in_silence) {
    Recorder recorder;
    recorder.answer("iconv_open", {-1, -1, -1, -1, -1, -1});
    expect("plain", "");
    EXPECT_EQ(recorder.calls({"syslog"}), Lines());
}

TEST_P(SsidWriter, converts_the_ssids_of_the_networks_that_are_written) {
    const std::pair<const char *, std::size_t> counts[] = {{"0", 0}, {"1", 0}, {"2", 1}, {"4", 3},
                                                           {"5", 3}, {"6", 4}, {"8", 6}, {"255", 6}};
    for (const auto &[wlan_count, expected] : counts) {
        const std::size_t converters = support::build_profile.shares_converter && expected != 0 ? 1 : expected;
        EXPECT_EQ(converters_for(wlan_count), GetParam().converts ? converters : 0U) << wlan_count;
    }
}

INSTANTIATE_TEST_SUITE_P(All, SsidWriter, testing::ValuesIn(writers::all()), testing::PrintToStringParamName());

}  // namespace
