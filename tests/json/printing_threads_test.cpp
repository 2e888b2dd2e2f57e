// Threads that print at the same time: each element comes out whole, the closing one included.
#include <gtest/gtest.h>

#include <thread>

#include "json/ap_list.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"

namespace {

constexpr int rounds = 25;

const std::string group =
    R"({"WlanGroup_Id":"7","WlanGroup_Name":"","WlanGroup_Wlan1_Ssid":"","WlanGroup_Wlan1_Security":"",)"
    R"("WlanGroup_Wlan1_AuthMode":"","WlanGroup_Wlan1_SecurityCipher":"","WlanGroup_Wlan1_Wep_Value":"",)"
    R"("WlanGroup_Wlan1_Psk_Value":"","WlanGroup_Wlan_Channel":"","WlanGroup_Wlan5_Ssid":"",)"
    R"("WlanGroup_Wlan5_Security":"","WlanGroup_Wlan5_AuthMode":"","WlanGroup_Wlan5_SecurityCipher":"",)"
    R"("WlanGroup_Wlan5_Wep_Value":"","WlanGroup_Wlan5_Psk_Value":"","WlanGroup_Wlan_Channel_sec":"",)"
    R"("Wlan_txpower":"","Wlan_txpower_sec":"","TimeRebootEnable":"","RebootTime":""},)";
const std::string closing_group =
    R"({"WlanGroup_Id":"","WlanGroup_Name":"","WlanGroup_Wlan1_Ssid":"","WlanGroup_Wlan1_Security":"",)"
    R"("WlanGroup_Wlan1_AuthMode":"","WlanGroup_Wlan1_SecurityCipher":"","WlanGroup_Wlan1_Wep_Value":"",)"
    R"("WlanGroup_Wlan1_Psk_Value":"","WlanGroup_Wlan_Channel":"","WlanGroup_Wlan5_Ssid":"",)"
    R"("WlanGroup_Wlan5_Security":"","WlanGroup_Wlan5_AuthMode":"","WlanGroup_Wlan5_SecurityCipher":"",)"
    R"("WlanGroup_Wlan5_Wep_Value":"","WlanGroup_Wlan5_Psk_Value":"","WlanGroup_Wlan_Channel_sec":"",)"
    R"("Wlan_txpower":"","Wlan_txpower_sec":"","TimeRebootEnable":"","RebootTime":""}],"count":"20"}})";

std::size_t occurrences(const std::string &text, const std::string &part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// What two threads print that call it again and again.
std::string printed_by_two(void (*call)()) {
    std::string text;
    for (const std::string &write : printed::writes_of([call] {
             const auto print = [call] {
                 for (int round = 0; round < rounds; ++round) {
                     call();
                 }
             };
             std::thread other(print);
             print();
             other.join();
         })) {
        text += write;
    }
    return text;
}

TEST(TwoThreads, do_not_mix_inside_an_element_of_several_pieces) {
    for (int i = 0; i < 20; ++i) {
        support::execute("insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(7);");
    }
    const std::string text = printed_by_two([] { GetWlanZeroCfgGroupList(); });
    EXPECT_EQ(occurrences(text, group), 2U * rounds * 20U);
    EXPECT_EQ(occurrences(text, closing_group), 2U * rounds);
}

TEST(TwoThreads, do_not_mix_inside_an_access_point) {
    ap_list::add_network(17);
    const std::string text = printed_by_two([] { GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); });
    for (int i = 1; i <= 17; ++i) {
        EXPECT_EQ(occurrences(text, ap_list::element(std::to_string(i), "10.0.0." + std::to_string(i), "", "", "0")),
                  2U * rounds);
    }
    EXPECT_EQ(
        occurrences(text, ap_list::closing + std::string(R"(,"count":"17","pagenum":"1","pagecount":"1",)"
                                                         R"("sumcount":"17","onlinecount":"0","stasumnum":"0"}})")),
        2U * rounds);
}

}  // namespace
