// Whether an access point agrees with its group: every member by itself, for both kinds of group.
#include <gtest/gtest.h>

#include "apinventory/places.h"
#include "support/named.h"
#include "support/streams.h"

namespace {

using places::Counts;
using places::Place;
using places::put;

struct Comparison : support::Named {
    int (*compare)(DevInfo device, DevInfo group) = nullptr;
    bool zero_config = false;
};

std::vector<Comparison> comparisons() {
    Comparison wlan_group{{"CompareDevInfoWithGroupInfo"}};
    wlan_group.compare = CompareDevInfoWithGroupInfo;
    Comparison zero_config{{"CompareDevInfoWithZeroGroupInfo"}};
    zero_config.compare = CompareDevInfoWithZeroGroupInfo;
    zero_config.zero_config = true;
    return {wlan_group, zero_config};
}

/// A record with the same text in every member, and a count of networks.
DevInfo device_with(const std::string &wlan_count) {
    DevInfo device{};
    for (const Place &place : places::all()) {
        put(device, place, "s");
    }
    put(device, "Dev_Wlan_Radio_Num", wlan_count);
    return device;
}

/// Which members are in force beside those that always are.
struct Security {
    std::string cipher = "0";
    std::string authentication = "0";
    bool wep = false;
    bool key = false;
};

void put(DevInfo &record, const Security &security) {
    for (int wlan = 1; wlan <= 8; ++wlan) {
        const std::string prefix = "Dev_Wlan" + std::to_string(wlan) + "_";
        put(record, prefix + "Securitycipher", security.cipher);
        put(record, prefix + "Authmode", security.authentication);
    }
}

class Comparing : public testing::TestWithParam<Comparison> {
protected:
    static int compare(const DevInfo &device, const DevInfo &group) {
        int result = -1;
        const support::Streams::Text said = support::streams_of([&] { result = GetParam().compare(device, group); });
        EXPECT_EQ(said.output + said.error, "");
        return result;
    }

    /// Whether a difference in a place counts for an access point with so many networks and radios compared.
    static bool counts(const Place &place, const Security &security, int wlans, int radios) {
        if (place.wlan > wlans || (place.wlan == 0 && place.radio > radios)) {
            return false;
        }
        switch (place.counts) {
            case Counts::never:
                return false;
            case Counts::always:
                return true;
            case Counts::with_wep:
                return security.wep;
            case Counts::with_key:
                return security.key;
            case Counts::as_zero_config:
                return GetParam().zero_config;
        }
        return false;
    }

    /// Expects for each member whether it counts if it is the only one that differs.
    static void expect_each_member(const std::string &wlan_count, const Security &security, int wlans, int radios) {
        DevInfo group = device_with("ours");  // the count is the access point's
        put(group, security);
        DevInfo same = group;
        put(same, "Dev_Wlan_Radio_Num", wlan_count);
        EXPECT_EQ(compare(same, group), 0);
        for (const Place &place : places::all()) {
            if (place.name == "Dev_Wlan_Radio_Num") {
                continue;  // decides how much is compared
            }
            DevInfo device = same;
            put(device, place, "other");
            EXPECT_EQ(compare(device, group), counts(place, security, wlans, radios) ? 1 : 0)
                << place.name << ", count " << wlan_count << ", cipher " << security.cipher << ", authentication "
                << security.authentication;
        }
    }
};

TEST_P(Comparing, of_eight_networks_every_member_counts_or_not_by_itself) {
    expect_each_member("8", {}, 8, 2);
}

TEST_P(Comparing, of_four_networks_those_of_the_second_radio_never_count) {
    expect_each_member("4", {}, 4, 1);
}

TEST_P(Comparing, of_another_number_of_networks_all_count_and_the_second_radio_does_not) {
    for (const char *count : {"", "0", "1", "5", "9", "44", "x", "-8"}) {
        expect_each_member(count, {}, 8, 1);
    }
}

TEST_P(Comparing, reads_the_count_as_a_number) {
    expect_each_member("08", {}, 8, 2);
    expect_each_member(" 8x", {}, 8, 2);
    expect_each_member("4.5", {}, 4, 1);
}

TEST_P(Comparing, wep_texts_count_for_the_ciphers_1_and_2) {
    for (const char *cipher : {"1", "2", "01", "2x"}) {
        expect_each_member("8", {cipher, "0", true, false}, 8, 2);
        expect_each_member("4", {cipher, "0", true, false}, 4, 1);
    }
    for (const char *cipher : {"3", "", "12", "-1", "x1"}) {
        expect_each_member("8", {cipher, "0", false, false}, 8, 2);
    }
}

TEST_P(Comparing, key_texts_count_for_the_authentication_1) {
    for (const char *authentication : {"1", "01", "1x"}) {
        expect_each_member("8", {"0", authentication, false, true}, 8, 2);
        expect_each_member("4", {"0", authentication, false, true}, 4, 1);
    }
    for (const char *authentication : {"2", "", "11", "-1", "x"}) {
        expect_each_member("8", {"0", authentication, false, false}, 8, 2);
    }
}

TEST_P(Comparing, wep_and_key_texts_count_together) {
    expect_each_member("8", {"2", "1", true, true}, 8, 2);
    expect_each_member("5", {"1", "1", true, true}, 8, 1);
}

TEST_P(Comparing, each_network_has_its_own_security) {
    DevInfo group = device_with("8");
    put(group, "Dev_Wlan3_Securitycipher", "2");
    put(group, "Dev_Wlan6_Authmode", "1");
    for (int wlan = 1; wlan <= 8; ++wlan) {
        const std::string prefix = "Dev_Wlan" + std::to_string(wlan) + "_";
        DevInfo device = group;
        put(device, prefix + "Wep_Value", "other");
        EXPECT_EQ(compare(device, group), wlan == 3 ? 1 : 0) << wlan;
        device = group;
        put(device, prefix + "Psk_Value", "other");
        EXPECT_EQ(compare(device, group), wlan == 6 ? 1 : 0) << wlan;
    }
}

TEST_P(Comparing, case_counts) {
    DevInfo device = device_with("8");
    DevInfo group = device;
    put(device, "Dev_Wlan1_Ssid", "Abc");
    put(group, "Dev_Wlan1_Ssid", "abc");
    EXPECT_EQ(compare(device, group), 1);
}

TEST_P(Comparing, texts_are_compared_and_not_numbers) {
    DevInfo device = device_with("8");
    DevInfo group = device;
    put(device, "Dev_Wlan_Rts", "07");
    put(group, "Dev_Wlan_Rts", "7");
    EXPECT_EQ(compare(device, group), 1);
}

TEST_P(Comparing, what_stands_behind_a_text_does_not_count) {
    DevInfo device = places::odd_record();
    DevInfo group{};
    for (const Place &place : places::all()) {
        put(device, place, "s");
        put(group, place, "s");
    }
    put(device, "Dev_Wlan_Radio_Num", "8");
    EXPECT_EQ(compare(device, group), 0);
}

TEST_P(Comparing, the_last_character_of_a_text_that_fills_its_member_counts) {
    const DevInfo group = places::record_of(std::string(places::record_size, 'x'));
    DevInfo device = group;
    put(device, "Dev_Wlan_Radio_Num", "8");
    EXPECT_EQ(compare(device, group), 0);
    put(device, "Dev_Wlan8_Ssid", std::string(99, 'x') + "y");
    EXPECT_EQ(compare(device, group), 1);
}

TEST_P(Comparing, channel_and_transmit_power_of_a_wlan_group_do_not_count) {
    DevInfo group = device_with("8");
    DevInfo device = group;
    put(device, "Dev_Wlan_Channel", "11");
    EXPECT_EQ(compare(device, group), 0);
    put(device, "Dev_Wlan_Txpower", "50");
    EXPECT_EQ(compare(device, group), GetParam().zero_config ? 1 : 0);
}

TEST_P(Comparing, reboot_times_count_also_for_one_radio_against_a_zero_configuration_group) {
    for (const char *count : {"4", "6", ""}) {
        const DevInfo group = device_with(count);
        DevInfo device = group;
        put(device, "Dev_RebootTime", "5");
        EXPECT_EQ(compare(device, group), GetParam().zero_config ? 1 : 0) << count;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Comparing, testing::ValuesIn(comparisons()), testing::PrintToStringParamName());

/// A comparison with a WLAN group by number.
struct Compared {
    int result;
    std::string output;
};

Compared compare_numbers(const std::string &of_device, const std::string &of_group, const char *ssid = "s") {
    DevInfo device = device_with("8");
    DevInfo group = device;
    put(device, "Dev_Wlan_GroupId", of_device);
    put(group, "Dev_Wlan_GroupId", of_group);
    put(group, "Dev_Wlan1_Ssid", ssid);
    Compared compared{};
    compared.output = support::streams_of([&] { compared.result = CompareDevInfoWithGroupInfo(device, group); }).output;
    return compared;
}

TEST(GroupNumbers, are_compared_as_numbers) {
    for (const auto &[device, group] : std::initializer_list<std::pair<const char *, const char *>>{
             {"3", "03"}, {"3", "3x"}, {"", "0"}, {"x", ""}, {" 12", "12"}}) {
        const Compared compared = compare_numbers(device, group);
        EXPECT_EQ(compared.result, 0) << device << " and " << group;
        EXPECT_EQ(compared.output, "");
    }
}

TEST(GroupNumbers, that_differ_make_the_difference_and_are_told) {
    for (const auto &[device, group] : std::initializer_list<std::pair<const char *, const char *>>{
             {"3", "4"}, {"3", "13"}, {"1", "-1"}, {"3", ""}, {"", "1"}}) {
        const Compared compared = compare_numbers(device, group);
        EXPECT_EQ(compared.result, 1) << device << " and " << group;
        EXPECT_EQ(compared.output, "CompareDevInfoWithGroupInfo 6054\n");
    }
}

TEST(GroupNumbers, are_looked_at_before_anything_else) {
    EXPECT_EQ(compare_numbers("3", "4", "other").output, "CompareDevInfoWithGroupInfo 6054\n");
    EXPECT_EQ(compare_numbers("3", "3", "other").output, "");
    EXPECT_EQ(compare_numbers("3", "3", "other").result, 1);
}

TEST(GroupNumbers, of_a_missing_group_differ_from_every_number_but_0) {
    DevInfo device{};
    put(device, "Dev_Wlan_GroupId", "3");
    support::streams_of([&] { EXPECT_EQ(CompareDevInfoWithGroupInfo(device, DevInfo{}), 1); });
    put(device, "Dev_Wlan_GroupId", "0");
    EXPECT_EQ(CompareDevInfoWithGroupInfo(device, DevInfo{}), 0);
}

TEST(GroupNumbers, do_not_count_against_a_zero_configuration_group) {
    DevInfo device = device_with("8");
    put(device, "Dev_Wlan_GroupId", "3");
    DevInfo group = device;
    put(group, "Dev_Wlan_GroupId", "1");
    EXPECT_EQ(support::streams_of([&] { EXPECT_EQ(CompareDevInfoWithZeroGroupInfo(device, group), 0); }).output, "");
}

}  // namespace
