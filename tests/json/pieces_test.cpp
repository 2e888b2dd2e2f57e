// In which pieces the lists reach a standard output without a buffer, on which each piece is one write.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>

#include "json/ap_list.h"
#include "json/catalogue.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/recorder.h"

// A piece that does not fit a line is several literals side by side. NOLINTBEGIN(bugprone-suspicious-missing-comma)
namespace {

using printed::writes_of;
using Pieces = std::vector<std::string>;

TEST(CataloguePieces, of_all_classes_are_an_element_each) {
    catalogue::fill();
    catalogue::execute("delete from App_Class where Id=9;");
    const Pieces pieces = writes_of(GetAppClassItemList);
    EXPECT_EQ(pieces.size(), 6U);
    EXPECT_EQ(
        pieces,
        (Pieces{
            R"({"ItemList":)", R"({"data":[)",
            R"({"id":"3","name":"聊天","name_en":"Chat","mark":"talk","priority":"0","bw":"0","appnames":"A/B/","appnames_en":"A en/B en/","appfeature":"fa/fb/"},)",
            R"({"id":"7","name":"视频","name_en":"Video","mark":"films","priority":"0","bw":"0","appnames":"优酷/","appnames_en":"Youku/","appfeature":"youku/"},)",
            R"({"id":"","name":"","name_en":"","mark":"","priority":"","bw":"","appnames":"","appnames_en":"","appfeature":"")",
            R"(}],"count":"2"}})"}));
}

TEST(CataloguePieces, of_one_class_are_five) {
    catalogue::fill();
    const Pieces pieces = writes_of([] { GetAppClassItem("7"); });
    EXPECT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces, (Pieces{R"({"ItemList":)", R"({"data":[)", R"({"name":"视频","mark":"films","priority":"0"},)",
                              R"({"name":"","mark":"","priority":"")", R"(}],"count":"3"}})"}));
}

TEST(CataloguePieces, of_one_application_are_five) {
    catalogue::fill();
    const Pieces pieces = writes_of([] { GetAppInfoItem("4"); });
    EXPECT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces, (Pieces{R"({"ItemList":)", R"({"data":[)",
                              R"({"classname":"3","appname":"B","appname_en":"B en","features":"fb","mark":"second"},)",
                              R"({"classname":"","appname":"","appname_en":"","features":"","mark":"" )",
                              R"(}],"count":"1"}})"}));
}

TEST(CataloguePieces, of_the_applications_of_a_class_are_an_element_each) {
    catalogue::fill();
    const Pieces pieces = writes_of([] { GetAppInfoItemListByClassid("3"); });
    EXPECT_EQ(pieces.size(), 6U);
    EXPECT_EQ(pieces,
              (Pieces{R"({"ItemList":)", R"({"data":[)",
                      R"({"id":"1","class_id":"3","appname":"A","appname_en":"A en","features":"fa","mark":"first"},)",
                      R"({"id":"4","class_id":"3","appname":"B","appname_en":"B en","features":"fb","mark":"second"},)",
                      R"({"id":"","class_id":"","appname":"","appname_en":"","features":"","mark":"" )",
                      R"(}],"count":"2"}})"}));
}

TEST(CataloguePieces, of_an_empty_table_are_two) {
    for (const catalogue::List &list : catalogue::lists()) {
        EXPECT_EQ(writes_of([&list] { list.print(); }), (Pieces{R"({"ItemList":)", R"({"count":"0"}})"})) << list.name;
    }
}

TEST(CataloguePieces, hold_the_longest_element_whole) {
    catalogue::execute("insert into App_Class values(3,'','',0,'');");
    std::string joined;
    for (int id = 1; id <= 21; ++id) {
        const std::string name(id <= 20 ? 199 : 94, 'x');
        catalogue::execute("insert into App_Info values(" + std::to_string(id) + ",3,'" + name + "','" + name + "','" +
                           name + "','');");
        joined.append(name).append("/");
    }
    ASSERT_EQ(joined.size(), 4095U);
    const Pieces pieces = writes_of(GetAppClassItemList);
    ASSERT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces[2], R"({"id":"3","name":"","name_en":"","mark":"","priority":"0","bw":"0","appnames":")" + joined +
                             R"(","appnames_en":")" + joined + R"(","appfeature":")" + joined + R"("},)");
}

TEST(ApListPieces, of_two_access_points_are_five) {
    ap_list::add_network(2);
    const Pieces pieces = writes_of([] { GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); });
    EXPECT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces,
              (Pieces{R"({"ApDevList":)", R"({"data":[)", ap_list::element("1", "10.0.0.1", "", "", "0"),
                      ap_list::element("2", "10.0.0.2", "", "", "0"),
                      ap_list::closing + std::string(R"(,"count":"2","pagenum":"1","pagecount":"0","sumcount":"2",)"
                                                     R"("onlinecount":"0","stasumnum":"0"}})")}));
}

TEST(ApListPieces, of_no_access_point_are_two) {
    EXPECT_EQ(
        writes_of([] { GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); }),
        (Pieces{R"({"ApDevList":)",
                R"({"count":"0","pagenum":"1","pagecount":"0","sumcount":"0","onlinecount":"0","stasumnum":"0"}})"}));
}

TEST(ZeroConfigPieces, are_five_of_each_group_and_four_of_the_closing_element) {
    support::execute("insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name) values(1,'hall'),(2,'yard');");
    const auto group = [](const std::string &id, const std::string &name) {
        return Pieces{
            R"({"WlanGroup_Id":")" + id + R"(","WlanGroup_Name":")" + name +
                R"(","WlanGroup_Wlan1_Ssid":"","WlanGroup_Wlan1_Security":"","WlanGroup_Wlan1_AuthMode":"",)",
            R"("WlanGroup_Wlan1_SecurityCipher":"","WlanGroup_Wlan1_Wep_Value":"","WlanGroup_Wlan1_Psk_Value":"",)"
            R"("WlanGroup_Wlan_Channel":"",)",
            R"("WlanGroup_Wlan5_Ssid":"","WlanGroup_Wlan5_Security":"","WlanGroup_Wlan5_AuthMode":"",)",
            R"("WlanGroup_Wlan5_SecurityCipher":"","WlanGroup_Wlan5_Wep_Value":"","WlanGroup_Wlan5_Psk_Value":"",)"
            R"("WlanGroup_Wlan_Channel_sec":"",)",
            R"("Wlan_txpower":"","Wlan_txpower_sec":"","TimeRebootEnable":"","RebootTime":""},)"};
    };
    Pieces expected{R"({"WlanGroupList":)", R"({"data":[)"};
    for (const Pieces &more :
         {group("1", "hall"), group("2", "yard"),
          Pieces{R"({"WlanGroup_Id":"","WlanGroup_Name":"","WlanGroup_Wlan1_Ssid":"","WlanGroup_Wlan1_Security":"",)",
                 R"("WlanGroup_Wlan1_AuthMode":"","WlanGroup_Wlan1_SecurityCipher":"","WlanGroup_Wlan1_Wep_Value":"",)"
                 R"("WlanGroup_Wlan1_Psk_Value":"",)",
                 R"("WlanGroup_Wlan_Channel":"","WlanGroup_Wlan5_Ssid":"","WlanGroup_Wlan5_Security":"",)"
                 R"("WlanGroup_Wlan5_AuthMode":"",)",
                 R"("WlanGroup_Wlan5_SecurityCipher":"","WlanGroup_Wlan5_Wep_Value":"","WlanGroup_Wlan5_Psk_Value":"",)"
                 R"("WlanGroup_Wlan_Channel_sec":"","Wlan_txpower":"","Wlan_txpower_sec":"","TimeRebootEnable":"",)"
                 R"("RebootTime":"")",
                 R"(}],"count":"2"}})"}}) {
        expected.insert(expected.end(), more.begin(), more.end());
    }
    const Pieces pieces = writes_of([] { GetWlanZeroCfgGroupList(); });
    EXPECT_EQ(pieces.size(), 17U);
    EXPECT_EQ(pieces, expected);
}

TEST(ZeroConfigPieces, of_no_group_are_two) {
    EXPECT_EQ(writes_of([] { GetWlanZeroCfgGroupList(); }), (Pieces{R"({"WlanGroupList":)", R"({"count":"0"}})"}));
}

TEST(StationPieces, of_two_stations_are_five) {
    mkdir("/var/stations", 0755);
    support::write_file("/var/stations/10.0.0.1", "a+1+-1\nb+2+-2\n");
    const Pieces pieces = writes_of([] { GetApDevStaList("10.0.0.1"); });
    EXPECT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces, (Pieces{"{\"DevStalist\":\n", R"({"sta":[)", R"({"mac":"a","time":"1","signal":"-1"},)",
                              R"({"mac":"b","time":"2","signal":"-2"},)",
                              R"({"mac":"","time":"","signal":""}],"count":"2"}})"
                              "\n"}));
}

TEST(StationPieces, without_a_file_are_two) {
    support::Recorder recorder;
    recorder.keep_commands_from_running();
    ASSERT_EQ(mkdir("/var/stalist_1", 0755), 0);
    recorder.answer("draw", {support::build_profile.keeps_addresses_from_shell ? 0 : RAND_MAX});
    EXPECT_EQ(writes_of([] { GetApDevStaList("10.0.0.1"); }), (Pieces{"{\"DevStalist\":\n", R"({"count":"0"}})"}));
}

}  // namespace
// NOLINTEND(bugprone-suspicious-missing-comma)
