// What an element of the list of access points shows.
#include <gtest/gtest.h>

#include <cstdio>

#include "apinventory/places.h"
#include "json/ap_list.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using printed::Texts;

/// Adds a row whose columns behind the first are given by number.
template <typename Text>
void add_row(Text text) {
    std::string values = "7";
    for (int column = 1; column < places::device_columns; ++column) {
        values += ",'" + text(column) + "'";
    }
    support::execute("insert into DevInfo values(" + values + ");");
}

Texts only_element() {
    const printed::List list = printed::parse(ap_list::page({}), "ApDevList");
    EXPECT_EQ(list.elements.size(), 2U);
    return list.elements.front();
}

TEST(ApListElement, shows_each_column_under_its_key) {
    add_row([](int column) { return "c" + std::to_string(column); });
    printed::expect_complete(
        ap_list::page({}),
        ap_list::opening +
            std::string(
                R"({"m_sn":"7","m_group_name":"c1","m_dev_name":"c2","m_dev_ip":"c3","m_dev_mac":"c8",)"
                R"("m_onlinetime":"c9","m_sw_ver":"c11","m_sw_name":"c10","m_channel":"c112",)"
                R"("m_current_channel":"c113","m_stanum":"0","m_dev_status":"c153","m_dev_upgrade_status":"c159",)"
                R"("m_wlan_group_name":"N/A","m_wlan_radio_num":"c15","m_channel_sec":"c132",)"
                R"("m_current_channel_sec":"c133","m_TimeRebootEnable":"c157","m_RebootTime":"c158",)"
                R"("m_CurrentTime":"c156","m_dev_modelname":"c13","m_wlan_txpower":"c126",)"
                R"("m_wlan_txpower_sec":"c146","m_wlan_ssid":"c18","m_wlan_ssid_sec":"c66"},)") +
            ap_list::closing +
            R"(,"count":"1","pagenum":"1","pagecount":"0","sumcount":"1","onlinecount":"0","stasumnum":"0"}})");
}

TEST(ApListElement, cuts_each_value_at_the_width_of_its_member) {
    const auto cut = [](std::size_t length) { return std::string(length, 'x'); };
    const Texts expected{
        {"m_sn", "7"},
        {"m_group_name", cut(199)},
        {"m_dev_name", cut(199)},
        {"m_dev_ip", cut(19)},
        {"m_dev_mac", cut(19)},
        {"m_onlinetime", cut(49)},
        {"m_sw_ver", cut(199)},
        {"m_sw_name", cut(199)},
        {"m_channel", cut(4)},
        {"m_current_channel", cut(4)},
        {"m_stanum", "0"},
        {"m_dev_status", cut(4)},
        {"m_dev_upgrade_status", cut(24)},
        {"m_wlan_group_name", "N/A"},
        {"m_wlan_radio_num", cut(4)},
        {"m_channel_sec", cut(4)},
        {"m_current_channel_sec", cut(4)},
        {"m_TimeRebootEnable", cut(4)},
        {"m_RebootTime", cut(49)},
        {"m_CurrentTime", cut(49)},
        {"m_dev_modelname", cut(99)},
        {"m_wlan_txpower", cut(4)},
        {"m_wlan_txpower_sec", cut(4)},
        {"m_wlan_ssid", cut(99)},
        {"m_wlan_ssid_sec", cut(99)},
    };
    add_row([](int) { return std::string(300, 'x'); });
    EXPECT_EQ(only_element(), expected);
}

TEST(ApListElement, is_full_of_empty_texts_for_a_row_of_nulls) {
    support::execute("insert into DevInfo(Dev_Sn) values(0);");
    printed::expect_complete(
        ap_list::page({1, 3, 0, 0, nullptr, "", 17}),
        ap_list::opening + std::string(ap_list::closing) +
            R"(,"count":"0","pagenum":"1","pagecount":"0","sumcount":"0","onlinecount":"0","stasumnum":"0"}})");
    support::execute("update DevInfo set Dev_Ipaddress='a';");
    printed::expect_complete(
        ap_list::page({}),
        ap_list::opening + ap_list::element("0", "a", "", "", "0") + ap_list::closing +
            R"(,"count":"1","pagenum":"1","pagecount":"0","sumcount":"1","onlinecount":"0","stasumnum":"0"}})");
}

TEST(ApListElement, shows_the_serial_number_without_a_sign) {
    support::execute("insert into DevInfo(Dev_Sn,Dev_Ipaddress) values(4294967295,'10.0.0.1');");
    EXPECT_EQ(only_element().at("m_sn"), "4294967295");
}

TEST(ApListElement, prints_values_escaped_as_the_profile_says_and_ssids_unconverted) {
    ap_list::add(1, R"(Dev_Ipaddress='a"b\c',Dev_Wlan1_Ssid='客厅',Dev_Wlan5_Ssid='书房')");
    const std::string text = ap_list::page({});
    constexpr bool escapes = support::build_profile.escapes_json;
    EXPECT_EQ(printed::is_json(text), escapes);
    EXPECT_NE(text.find(escapes ? R"("m_dev_ip":"a\"b\\c",)" : R"("m_dev_ip":"a"b\c",)"), std::string::npos) << text;
    EXPECT_NE(text.find(R"("m_wlan_ssid":"客厅","m_wlan_ssid_sec":"书房"},)"), std::string::npos) << text;
}

TEST(ApListElement, is_printed_behind_what_the_caller_has_printed) {
    const std::string text = printed::by([] {
        std::printf("Content-Type: application/json\n\n");
        GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17);
        std::printf("\n");
    });
    EXPECT_EQ(text, "Content-Type: application/json\n\n" + std::string(ap_list::nothing) + "\n");
}

struct Stations : support::Named {
    const char *columns;
    const char *shown;  // of the access point
    const char *total;
};

class ApListStations : public testing::TestWithParam<Stations> {};

TEST_P(ApListStations, are_counted) {
    ap_list::add(1, "Dev_Ipaddress='10.0.0.1'," + std::string(GetParam().columns));
    const printed::List list = printed::parse(ap_list::page({}), "ApDevList");
    EXPECT_EQ(printed::values(list, "m_stanum"), std::vector<std::string>{GetParam().shown});
    EXPECT_EQ(list.totals.at("stasumnum"), GetParam().total);
}

INSTANTIATE_TEST_SUITE_P(
    All, ApListStations,
    testing::Values(
        Stations{"TwoRadios", "Dev_Wlan_Radio_Num='8',Dev_Wlan_Sta_Num='3',Dev_Wlan_Sta_Num_sec='4'", "7", "7"},
        Stations{"OneRadio", "Dev_Wlan_Radio_Num='4',Dev_Wlan_Sta_Num='3',Dev_Wlan_Sta_Num_sec='4'", "3", "7"},
        Stations{"NoRadio", "Dev_Wlan_Sta_Num='3',Dev_Wlan_Sta_Num_sec='4'", "3", "7"},
        Stations{"MoreThanEight", "Dev_Wlan_Radio_Num='80',Dev_Wlan_Sta_Num='3',Dev_Wlan_Sta_Num_sec='4'", "3", "7"},
        Stations{"EightInOddSpelling", "Dev_Wlan_Radio_Num=' 08x',Dev_Wlan_Sta_Num='3',Dev_Wlan_Sta_Num_sec='4'", "7",
                 "7"},
        Stations{"NoNumbers", "Dev_Wlan_Radio_Num='8',Dev_Wlan_Sta_Num='x',Dev_Wlan_Sta_Num_sec='4 and more'", "4",
                 "4"},
        Stations{"Negative", "Dev_Wlan_Radio_Num='8',Dev_Wlan_Sta_Num='-3',Dev_Wlan_Sta_Num_sec='1'", "-2", "-2"},
        Stations{"FirstFourDigits", "Dev_Wlan_Radio_Num='8',Dev_Wlan_Sta_Num='12345',Dev_Wlan_Sta_Num_sec='99999'",
                 "11233", "112344"}),
    [](const auto &test) { return test.param.name; });

TEST(ApListTotals, count_no_stations_when_no_access_point_has_an_address) {
    ap_list::add(1, "Dev_Status='1',Dev_Wlan_GroupId='2',Dev_Wlan_Sta_Num='3'");
    const support::Recorder recorder;
    printed::expect_complete(
        ap_list::page({1, 0, 2, 0, nullptr, nullptr, 17}),
        ap_list::opening + ap_list::element("1", "", "", "1", "3") + ap_list::closing +
            R"(,"count":"1","pagenum":"1","pagecount":"0","sumcount":"0","onlinecount":"1","stasumnum":"0"}})");
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2 select sum"}).size(), support::build_profile.merges_totals ? 1U : 0U);
}

}  // namespace
