// What the CGI programs answer.
#include "web/cgi.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <vector>

namespace {

using web::answer;
using web::headers;
using web::post;

/// An answer with so many elements of access points in it: "192.168.1.2 192.168.1.3".
std::string addresses_in(const std::string &text) {
    static const std::string key = "\"m_dev_ip\":\"";
    std::string addresses;
    for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at + 1)) {
        const std::size_t start = at + key.size();
        addresses += text.substr(start, text.find('"', start) - start) + " ";
    }
    return addresses;
}

void insert_access_points(int count) {
    for (int n = 2; n < 2 + count; ++n) {
        const std::string number = std::to_string(n);
        support::execute("insert into DevInfo(Dev_Sn,Dev_IPSUM,Dev_Ipaddress,Dev_MAC,Dev_Status) values(" + number +
                         "," + number + ",'192.168.1." + number + "','02:00:00:00:AB:" + number + "','" +
                         (n % 2 == 0 ? "1" : "0") + "');");
    }
}

TEST(CgiAccessPoints, prints_the_headers_before_the_list) {
    support::execute(
        "insert into DevInfo(Dev_Sn,Dev_Name,Dev_Ipaddress,Dev_MAC,Dev_Status,Dev_Wlan_Radio_Num,Dev_Wlan_Sta_Num,"
        "Dev_Wlan1_Ssid) values(7,'Lobby 大堂','192.168.1.2','02:00:00:00:00:02','1','4','3','Hotel 酒店');");
    EXPECT_EQ(answer("access-points", ""),
              std::string(headers) +
                  R"({"ApDevList":{"data":[{"m_sn":"7","m_group_name":"","m_dev_name":"Lobby 大堂",)"
                  R"("m_dev_ip":"192.168.1.2","m_dev_mac":"02:00:00:00:00:02","m_onlinetime":"","m_sw_ver":"",)"
                  R"("m_sw_name":"","m_channel":"","m_current_channel":"","m_stanum":"3","m_dev_status":"1",)"
                  R"("m_dev_upgrade_status":"","m_wlan_group_name":"N/A","m_wlan_radio_num":"4","m_channel_sec":"",)"
                  R"("m_current_channel_sec":"","m_TimeRebootEnable":"","m_RebootTime":"","m_CurrentTime":"",)"
                  R"("m_dev_modelname":"","m_wlan_txpower":"","m_wlan_txpower_sec":"","m_wlan_ssid":"Hotel 酒店",)"
                  R"("m_wlan_ssid_sec":""},{"m_sn":"","m_group_name":"","m_dev_name":"","m_dev_ip":"",)"
                  R"("m_dev_mac":"","m_onlinetime":"","m_sw_ver":"","m_sw_name":"","m_channel":"","m_stanum":"",)"
                  R"("m_dev_status":"","m_dev_upgrade_status":"","m_wlan_group_name":"","m_wlan_radio_num":"",)"
                  R"("m_channel_sec":"","m_TimeRebootEnable":"","m_RebootTime":"","m_CurrentTime":"",)"
                  R"("m_dev_modelname":"","m_wlan_txpower":"","m_wlan_txpower_sec":""}],"count":"1","pagenum":"1",)"
                  R"("pagecount":"0","sumcount":"1","onlinecount":"1","stasumnum":"3"}})");
}

TEST(CgiAccessPoints, answers_the_page_and_the_size_that_are_asked_for) {
    insert_access_points(5);
    EXPECT_EQ(addresses_in(answer("access-points", "page=2&size=2")), "192.168.1.4 192.168.1.5  ");
    EXPECT_EQ(addresses_in(answer("access-points", "size=3")), "192.168.1.2 192.168.1.3 192.168.1.4  ");
}

TEST(CgiAccessPoints, has_17_rows_on_a_page_unless_told_otherwise) {
    insert_access_points(18);
    EXPECT_EQ(addresses_in(answer("access-points", "page=2")), "192.168.1.19  ");
}

TEST(CgiAccessPoints, filters_by_status) {
    insert_access_points(4);
    EXPECT_EQ(addresses_in(answer("access-points", "filter=online")), "192.168.1.2 192.168.1.4  ");
    EXPECT_EQ(addresses_in(answer("access-points", "filter=offline")), "192.168.1.3 192.168.1.5  ");
    EXPECT_EQ(addresses_in(answer("access-points", "filter=all&size=2")), "192.168.1.2 192.168.1.3  ");
}

TEST(CgiAccessPoints, searches_by_address_and_mac) {
    insert_access_points(12);
    EXPECT_EQ(addresses_in(answer("access-points", "ip=1.1")), "192.168.1.10 192.168.1.11 192.168.1.12 192.168.1.13  ");
    EXPECT_EQ(addresses_in(answer("access-points", "mac=ab:12")), "192.168.1.12  ");
    EXPECT_EQ(addresses_in(answer("access-points", "ip=1.1&mac=:13")), "192.168.1.13  ");
}

TEST(CgiAccessPoints, decodes_what_is_encoded) {
    insert_access_points(12);
    EXPECT_EQ(addresses_in(answer("access-points", "mac=aB%3A1%32&p%61ge=%31")), "192.168.1.12  ");
    EXPECT_EQ(addresses_in(answer("access-points", "&ip=192%2e168%2E1%2e7&")), "192.168.1.7  ");
}

TEST(CgiAccessPoints, answers_short_when_nothing_matches) {
    insert_access_points(2);
    EXPECT_EQ(answer("access-points", "ip=10.9"),
              std::string(headers) + R"({"ApDevList":{"count":"0","pagenum":"1","pagecount":"0","sumcount":"0",)"
                                     R"("onlinecount":"0","stasumnum":"0"}})");
}

TEST(CgiStations, asks_the_access_point_for_its_stations) {
    std::filesystem::create_directory("/var/stations");
    support::write_file("/var/stations/192.168.1.2", "02:00:00:00:00:09+120+-67\n");
    EXPECT_EQ(post("stations", "ap=192.168.1.2"),
              std::string(headers) +
                  "{\"DevStalist\":\n"
                  R"({"sta":[{"mac":"02:00:00:00:00:09","time":"120","signal":"-67"},)"
                  R"({"mac":"","time":"","signal":""}],"count":"1"}})"
                  "\n");
    EXPECT_EQ(support::file_content("/var/calls"), "capwapmanage -c -a192.168.1.2\n");
}

// The calls share ten files: without turns, some of so many would read another's.
TEST(CgiStations, keeps_requests_at_the_same_moment_apart) {
    std::filesystem::create_directory("/var/stations");
    std::vector<std::unique_ptr<support::Process>> requests;
    const auto ask = [](const std::string &number) {
        return web::become_program("stations", web::own_page(), "/tmp/answer" + number, "ap=10.0.0." + number);
    };
    for (const char *number : {"1", "2", "3", "4"}) {
        const std::string address = std::string("10.0.0.") + number;
        support::write_file("/var/stations/" + address, address + "+1+-1\n");
        requests.push_back(std::make_unique<support::Process>([&ask, number] { return ask(number); }));
    }
    for (const auto &request : requests) {
        EXPECT_EQ(request->wait(), 0);
    }
    for (const char *number : {"1", "2", "3", "4"}) {
        EXPECT_NE(support::file_content(std::string("/tmp/answer") + number)
                      .find(std::string("[{\"mac\":\"10.0.0.") + number + "\""),
                  std::string::npos);
    }
}

TEST(CgiCatalogue, lists_the_classes) {
    const support::Database catalogue(support::catalogue_database);
    catalogue.execute("insert into App_Class values(1,'视频','Video',0,'');");
    catalogue.execute("insert into App_Info values(5,1,'影院','Cinema','vid-a','');");
    EXPECT_EQ(answer("catalogue", ""),
              std::string(headers) +
                  R"({"ItemList":{"data":[{"id":"1","name":"视频","name_en":"Video","mark":"","priority":"0","bw":"0",)"
                  R"("appnames":"影院/","appnames_en":"Cinema/","appfeature":"vid-a/"},{"id":"","name":"",)"
                  R"("name_en":"","mark":"","priority":"","bw":"","appnames":"","appnames_en":"","appfeature":""}],)"
                  R"("count":"1"}})");
}

TEST(CgiCatalogue, lists_the_applications_of_a_class) {
    const support::Database catalogue(support::catalogue_database);
    catalogue.execute("insert into App_Info values(5,1,'影院','Cinema','vid-a','new');");
    EXPECT_EQ(answer("catalogue", "class=1"),
              std::string(headers) +
                  R"({"ItemList":{"data":[{"id":"5","class_id":"1","appname":"影院","appname_en":"Cinema",)"
                  R"("features":"vid-a","mark":"new"},{"id":"","class_id":"","appname":"","appname_en":"",)"
                  R"("features":"","mark":"" }],"count":"1"}})");
    EXPECT_EQ(answer("catalogue", "class=2"), std::string(headers) + R"({"ItemList":{"count":"0"}})");
}

TEST(CgiZeroConfigGroups, lists_the_groups) {
    support::execute(
        "insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan1_Ssid,"
        "WlanGroup_Wlan1_Psk_Value) values(1,'Guests 客人','Hotel 酒店','good-morning');");
    const std::string text = answer("zero-config-groups", "");
    EXPECT_EQ(
        text.find(std::string(headers) + R"({"WlanGroupList":{"data":[{"WlanGroup_Id":"1",)"
                                         R"("WlanGroup_Name":"Guests 客人","WlanGroup_Wlan1_Ssid":"Hotel 酒店",)"),
        0U);
    EXPECT_NE(text.find(R"("WlanGroup_Wlan1_Psk_Value":"good-morning")"), std::string::npos);
    EXPECT_NE(text.find(R"("RebootTime":""}],"count":"1"}})"), std::string::npos);
}

}  // namespace
