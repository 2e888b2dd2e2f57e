// Giving an access point the settings of its group: what either kind of group sets, and what stays.
#include <gtest/gtest.h>

#include "apinventory/places.h"
#include "apinventory/tables.h"
#include "support/at_page_end.h"
#include "support/named.h"

namespace {

using places::Given;
using places::Place;
using places::put;

struct Copy : support::Named {
    char *(*apply)(DevInfo *device, const DevInfo *group) = nullptr;
    bool zero_config = false;
};

std::vector<Copy> copies() {
    Copy wlan_group{{"SetDevInfoFromWlanGroupInfo"}};
    wlan_group.apply = SetDevInfoFromWlanGroupInfo;
    Copy zero_config{{"SetDevInfoFromWlanZeroCfgGroupInfo"}};
    zero_config.apply = SetDevInfoFromWlanZeroCfgGroupInfo;
    zero_config.zero_config = true;
    return {wlan_group, zero_config};
}

class Applying : public testing::TestWithParam<Copy> {
protected:
    static bool gives(const Place &place) {
        switch (place.given) {
            case Given::by_none:
                return false;
            case Given::by_both:
                return true;
            case Given::by_wlan_group:
                return !GetParam().zero_config;
            case Given::by_zero_config:
                return GetParam().zero_config;
        }
        return false;
    }

    /// What an access point has to hold when the group is applied: its own bytes, but for the texts that are given.
    /// Members of networks are cleared first.
    static DevInfo with_given_texts(const DevInfo &device, const DevInfo &group) {
        DevInfo expected = device;
        for (const Place &place : places::all()) {
            if (gives(place)) {
                if (place.wlan != 0) {
                    put(expected, place, std::string(place.width, '\0'));
                }
                put(expected, place, places::text(group, place));
            }
        }
        return expected;
    }

    static void expect(const DevInfo &device, const DevInfo &group) {
        DevInfo changed = device;
        GetParam().apply(&changed, &group);
        EXPECT_EQ(places::difference(with_given_texts(device, group), changed), "");
    }

    /// Texts of the access point that are longer than those of the group.
    static DevInfo device() {
        DevInfo device = places::odd_record();
        for (const Place &place : places::all()) {
            put(device, place, std::string(place.width - 1, 'd'));
        }
        return device;
    }

    /// Each text is another one; the channels suit both radios.
    static DevInfo group() {
        DevInfo group{};
        int number = 0;
        for (const Place &place : places::all()) {
            put(group, place, "g" + std::to_string(++number));
        }
        put(group, "Dev_Wlan_Channel", "6");
        put(group, "Dev_Wlan_Channel_sec", "149");
        return group;
    }
};

TEST_P(Applying, gives_every_member_that_a_group_sets_and_keeps_the_others) {
    expect(device(), group());
}

TEST_P(Applying, gives_all_eight_networks_and_both_radios_whatever_the_count) {
    for (const char *count : {"4", "0", "", "8"}) {
        DevInfo one = device();
        put(one, "Dev_Wlan_Radio_Num", count);
        expect(one, group());
    }
}

TEST_P(Applying, an_empty_group_empties_what_it_gives) {
    DevInfo empty{};
    put(empty, "Dev_Wlan_Channel", "1");  // empty channels have a test of their own
    put(empty, "Dev_Wlan_Channel_sec", "1");
    expect(device(), empty);
}

TEST_P(Applying, texts_that_fill_their_members_are_given_whole) {
    DevInfo full = places::record_of(std::string(places::record_size, 'g'));
    put(full, "Dev_Wlan_Channel", "00006");
    put(full, "Dev_Wlan_Channel_sec", "00149");
    expect(device(), full);
}

TEST_P(Applying, texts_that_leave_room_for_a_terminator_bring_it) {
    DevInfo group{};
    for (const Place &place : places::all()) {
        put(group, place, std::string(place.width - 1, '1'));
    }
    put(group, "Dev_Wlan_Channel", "0011");
    expect(places::odd_record(), group);
}

TEST_P(Applying, reads_no_further_than_a_group_without_a_terminator) {
    support::AtPageEnd<DevInfo> full(places::record_of(std::string(places::record_size, '7')));
    DevInfo device{};
    GetParam().apply(&device, full.get());
    EXPECT_EQ(places::text(device, "Dev_Wlan8_Ssid"), std::string(100, '7'));
    EXPECT_EQ(places::text(device, "Dev_Wlan_Channel"), GetParam().zero_config ? "0" : "");
    EXPECT_EQ(places::text(device, "Dev_Wlan_Channel_sec"), GetParam().zero_config ? "77777" : "");
}

TEST_P(Applying, keeps_bssids_and_what_identifies_the_access_point) {
    DevInfo changed = device();
    const DevInfo given = group();
    GetParam().apply(&changed, &given);
    for (const char *name : {"Dev_Wlan1_Bssid", "Dev_Wlan8_Bssid", "Dev_MAC", "Dev_Ipaddress", "wlan_group_name",
                             "Dev_Wlan_Radio_Num", "Dev_Wlan_Mode", "Dev_Wlan_Bw_sec", "Dev_Wlan_MaxStaNum"}) {
        EXPECT_EQ(places::text(changed, name), places::text(device(), name)) << name;
    }
    EXPECT_EQ(changed.Dev_Sn, device().Dev_Sn);
}

TEST_P(Applying, a_group_that_was_read_empties_the_radius_members) {
    insert(tables::wlan_groups, numbered_row(tables::wlan_groups, "7"));
    insert(tables::zero_config_groups, numbered_row(tables::zero_config_groups, "7"));
    DevInfo read;
    if (GetParam().zero_config) {
        DB_getwlanzerocfggroupinfoByindex(&read, 7);
    } else {
        DB_getwlangroupinfoByindex(&read, 7);
    }
    DevInfo changed = device();
    GetParam().apply(&changed, &read);
    for (const char *name : {"radius_server_ip", "radius_server_port", "radius_shared_key"}) {
        EXPECT_EQ(places::text(changed, name), "") << name;
    }
}

TEST_P(Applying, returns_a_place_in_the_record) {
    DevInfo changed = device();
    const DevInfo given = group();
    const char *const record = reinterpret_cast<const char *>(&changed);
    EXPECT_EQ(GetParam().apply(&changed, &given) - record, GetParam().zero_config ? 6654 : 6674);
}

INSTANTIATE_TEST_SUITE_P(All, Applying, testing::ValuesIn(copies()), testing::PrintToStringParamName());

/// Applies the channels of a group, and returns what an access point has then.
std::pair<std::string, std::string> channels_after(char *(*apply)(DevInfo *, const DevInfo *), const std::string &first,
                                                   const std::string &second) {
    DevInfo device{};
    put(device, "Dev_Wlan_Channel", "d1");
    put(device, "Dev_Wlan_Channel_sec", "d2");
    DevInfo group{};
    put(group, "Dev_Wlan_Channel", first);
    put(group, "Dev_Wlan_Channel_sec", second);
    apply(&device, &group);
    return {places::text(device, "Dev_Wlan_Channel"), places::text(device, "Dev_Wlan_Channel_sec")};
}

TEST(Channels, stay_with_a_wlan_group) {
    EXPECT_EQ(channels_after(SetDevInfoFromWlanGroupInfo, "6", "149"), std::pair(std::string("d1"), std::string("d2")));
}

TEST(Channels, of_the_first_radio_above_13_become_0) {
    for (const auto &[channel, expected] : std::initializer_list<std::pair<const char *, const char *>>{
             {"1", "1"}, {"13", "13"}, {"14", "0"}, {"36", "0"}, {"165", "0"}, {"0", "0"}, {"", "0"}}) {
        EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, channel, "36").first, expected) << channel;
    }
}

TEST(Channels, of_the_first_radio_that_are_no_channels_are_taken_as_they_stand) {
    for (const char *channel : {"-1", "auto", "13x", "6.5", "0006"}) {
        EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, channel, "36").first, channel);
    }
}

TEST(Channels, of_five_characters_are_taken_whole) {
    EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, "11abc", "36abc"),
              std::pair(std::string("11abc"), std::string("36abc")));
    EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, "-1234", "00149"),
              std::pair(std::string("-1234"), std::string("00149")));
}

TEST(Channels, of_five_characters_are_read_to_their_last_one) {
    EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, "00014", "00000").first, "0");
    EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, "00013", "00000").second, "15");
    EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, "00013", "00001"),
              std::pair(std::string("00013"), std::string("00001")));
}

TEST(Channels, leave_what_stood_behind_them) {
    const auto bytes_after = [](const char *first, const char *second) {
        DevInfo device = places::odd_record();
        DevInfo group{};
        put(group, "Dev_Wlan_Channel", first);
        put(group, "Dev_Wlan_Channel_sec", second);
        SetDevInfoFromWlanZeroCfgGroupInfo(&device, &group);
        return std::string(device.Dev_Wlan_Channel, 5) + std::string(device.Dev_Wlan_Channel_sec, 5);
    };
    EXPECT_EQ(bytes_after("6", "149"), std::string("6\0ZZZ149\0Z", 10));
    EXPECT_EQ(bytes_after("14", "0"), std::string("0\0ZZZ15\0ZZ", 10));
}

TEST(Channels, of_the_second_radio_that_are_empty_or_0_or_none_become_15) {
    for (const auto &[channel, expected] :
         std::initializer_list<std::pair<const char *, const char *>>{{"", "15"},
                                                                      {"0", "15"},
                                                                      {"-1", "15"},
                                                                      {"auto", "15"},
                                                                      {"1", "1"},
                                                                      {"36", "36"},
                                                                      {"165", "165"},
                                                                      {"36x", "36x"}}) {
        EXPECT_EQ(channels_after(SetDevInfoFromWlanZeroCfgGroupInfo, "6", channel).second, expected) << channel;
    }
}

}  // namespace
