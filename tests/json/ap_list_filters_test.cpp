// Which access points a page shows: every mode, group and flag, with the statements that are run for it.
#include <gtest/gtest.h>

#include "json/ap_list.h"
#include "json/printed.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using ap_list::Request;
using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

struct Filter : support::Named {
    Request request;
    std::string count_query;
    std::string page_query;
    std::vector<int> shown;
};

Request request_of(int mode, int group = 0, int flag = 0, const char *ip = nullptr, const char *mac = nullptr) {
    return {1, mode, group, flag, ip, mac, 17};
}

constexpr char count_all[] = "select count(*) from DevInfo where Dev_Ipaddress <> '';";
constexpr char page_all[] = "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;";

const Filter filters[] = {
    {"All", request_of(0), count_all, page_all, {1, 2, 3, 5}},
    {"AllWithSearchTexts", request_of(0, 0, 0, "10.0.0", "AA"), count_all, page_all, {1, 2, 3, 5}},
    {"AllInNegativeGroup", request_of(0, -2), count_all, page_all, {1, 2, 3, 5}},
    {"AllWithUnknownFlag", request_of(0, 0, 3), count_all, page_all, {1, 2, 3, 5}},
    {"AllWithFlagOfGroups",
     request_of(0, 0, 1),
     count_all,
     "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,14 ;",
     {1, 2, 3, 5}},
    {"Online",
     request_of(1),
     "select count(*) from DevInfo where Dev_Status='1' and Dev_Ipaddress <> '';",
     "select * from DevInfo where Dev_Status='1'  and  Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;",
     {1, 3}},
    {"Offline",
     request_of(2),
     "select count(*) from DevInfo where Dev_Status='0' and Dev_Ipaddress <> '';",
     "select * from DevInfo where Dev_Status='0' and  Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;",
     {2, 5}},
    {"OfflineOnShortPage",
     request_of(2, 0, 2),
     "select count(*) from DevInfo where Dev_Status='0' and Dev_Ipaddress <> '';",
     "select * from DevInfo where Dev_Status='0' and  Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,14 ;",
     {2, 5}},
    {"AddressAndMac",
     request_of(3, 0, 0, "10.0", "BB"),
     "select count(*) from DevInfo where Dev_Ipaddress like '%10.0%' and Dev_MAC like '%BB%' ;",
     "select * from DevInfo where Dev_Ipaddress like '%10.0%' and Dev_MAC like '%BB%'  order by Dev_IPSUM  limit 0,17 "
     ";",
     {3}},
    {"Address",
     request_of(3, 0, 0, "10.0"),
     "select count(*) from DevInfo where Dev_Ipaddress like '%10.0%' ;",
     "select  *  from DevInfo where Dev_Ipaddress like '%10.0%' order by Dev_IPSUM  limit 0,17 ;",
     {1, 2, 3}},
    {"Mac",
     request_of(3, 0, 0, "", "BB"),
     "select count(*) from DevInfo where Dev_MAC like '%BB%' ;",
     "select  *  from DevInfo where Dev_MAC like '%BB%' order by Dev_IPSUM  limit 0,17 ;",
     {3, 4}},
    {"TextsAsGiven",
     request_of(3, 0, 0, "x%' or Dev_Sn='5"),
     "select count(*) from DevInfo where Dev_Ipaddress like '%" + support::as_value("x%' or Dev_Sn='5") + "%' ;",
     "select  *  from DevInfo where Dev_Ipaddress like '%" + support::as_value("x%' or Dev_Sn='5") +
         "%' order by Dev_IPSUM  limit 0,17 ;",
     {}},
    {"Group",
     request_of(0, 2),
     "select count(*) from DevInfo where Dev_Wlan_GroupId='2';",
     "select * from DevInfo where Dev_Wlan_GroupId='2'  order by Dev_IPSUM  limit 0,17 ;",
     {1, 2, 4, 6}},
    {"GroupInsteadOfSearch",
     request_of(3, 2, 2, "192.168", "CC"),
     "select count(*) from DevInfo where Dev_Wlan_GroupId='2';",
     "select * from DevInfo where Dev_Wlan_GroupId='2'  order by Dev_IPSUM  limit 0,14 ;",
     {1, 2, 4, 6}},
    {"GroupInsteadOfUnknownMode",
     request_of(9, 3),
     "select count(*) from DevInfo where Dev_Wlan_GroupId='3';",
     "select * from DevInfo where Dev_Wlan_GroupId='3'  order by Dev_IPSUM  limit 0,17 ;",
     {3}},
    {"OutsideGroup",
     request_of(1, 2, 1),
     "select count(*) from DevInfo where Dev_Wlan_GroupId<>'2';",
     "select * from DevInfo where Dev_Wlan_GroupId<>'2'  order by Dev_IPSUM  limit 0,14 ;",
     {3, 5}},
};

/// Access points 4 and 6 have no address.
void add_mixed_network() {
    ap_list::add(1,
                 "Dev_Ipaddress='10.0.0.1',Dev_MAC='AA:01',Dev_Status='1',Dev_Wlan_GroupId='2',Dev_Wlan_Sta_Num='3'");
    ap_list::add(2, "Dev_Ipaddress='10.0.0.2',Dev_MAC='AA:02',Dev_Status='0',Dev_Wlan_GroupId='2'");
    ap_list::add(3,
                 "Dev_Ipaddress='10.0.1.3',Dev_MAC='BB:03',Dev_Status='1',Dev_Wlan_GroupId='3',Dev_Wlan_Sta_Num='4',"
                 "Dev_Wlan_Sta_Num_sec='5'");
    ap_list::add(4, "Dev_Ipaddress='',Dev_MAC='BB:04',Dev_Status='1',Dev_Wlan_GroupId='2'");
    ap_list::add(5, "Dev_Ipaddress='192.168.1.5',Dev_MAC='CC:05',Dev_Status='0',Dev_Wlan_GroupId='0'");
    ap_list::add(6, "Dev_MAC='CC:06',Dev_Status='0',Dev_Wlan_GroupId='2'");
}

std::string element(int number) {
    const std::string elements[] = {
        ap_list::element("1", "10.0.0.1", "AA:01", "1", "3"),    ap_list::element("2", "10.0.0.2", "AA:02", "0", "0"),
        ap_list::element("3", "10.0.1.3", "BB:03", "1", "4"),    ap_list::element("4", "", "BB:04", "1", "0"),
        ap_list::element("5", "192.168.1.5", "CC:05", "0", "0"), ap_list::element("6", "", "CC:06", "0", "0"),
    };
    return elements[number - 1];
}

/// What is printed when these are shown, all of them on one page.
std::string list_of(const std::vector<int> &shown) {
    std::string text = ap_list::opening;
    for (const int number : shown) {
        text += element(number);
    }
    return text + ap_list::closing + ",\"count\":\"" + std::to_string(shown.size()) +
           R"(","pagenum":"1","pagecount":"0","sumcount":"4","onlinecount":"3","stasumnum":"12"}})";
}

/// The statements for the totals, before the two of the filter.
Lines totals_and(const Lines &queries) {
    Lines all = build_profile.merges_totals
                    ? Lines{"sqlite3_prepare_v2 select sum(Dev_Ipaddress <> ''),sum(Dev_Status='1'),"
                            "sum(Dev_Wlan_Sta_Num),sum(Dev_Wlan_Sta_Num_sec) from DevInfo;"}
                    : Lines{"sqlite3_prepare_v2 select count(*) from DevInfo where Dev_Ipaddress <> '';",
                            "sqlite3_prepare_v2 select count(*) from DevInfo  where Dev_Status='1';",
                            "sqlite3_prepare_v2 select sum(Dev_Wlan_Sta_Num) from DevInfo ;",
                            "sqlite3_prepare_v2 select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;"};
    for (const std::string &query : queries) {
        all.push_back("sqlite3_prepare_v2 " + query);
    }
    return all;
}

class ApListFilters : public testing::TestWithParam<Filter> {};

TEST_P(ApListFilters, show_the_access_points_that_match) {
    add_mixed_network();
    const Recorder recorder;
    const std::string text = ap_list::page(GetParam().request);
    const bool found = !GetParam().shown.empty();
    printed::expect_complete(text, found ? list_of(GetParam().shown) : ap_list::nothing);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}),
              totals_and(found ? Lines{GetParam().count_query, GetParam().page_query} : Lines{GetParam().count_query}));
}

TEST_P(ApListFilters, print_the_short_answer_without_any_access_point) {
    printed::expect_complete(
        ap_list::page(GetParam().request),
        R"({"ApDevList":{"count":"0","pagenum":"1","pagecount":"0","sumcount":"0","onlinecount":"0","stasumnum":"0"}})");
}

INSTANTIATE_TEST_SUITE_P(All, ApListFilters, testing::ValuesIn(filters),
                         [](const auto &test) { return test.param.name; });

TEST(ApListSearch, without_texts_counts_every_row_and_lists_those_with_an_address) {
    add_mixed_network();
    for (const char *text : {static_cast<const char *>(nullptr), ""}) {
        Request request = request_of(3, 0, 0, text, text);
        const Recorder recorder;
        printed::expect_complete(ap_list::page(request), list_of({1, 2, 3, 5}));
        EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}), totals_and({"select count(*) from DevInfo;", page_all}));
        request.page_size = 5;  // six rows make two pages, four access points would make none
        EXPECT_EQ(printed::parse(ap_list::page(request), "ApDevList").totals["pagecount"], "2");
    }
}

TEST(ApListSearch, without_texts_over_rows_without_an_address_prints_the_closing_element_alone) {
    ap_list::add(4, "Dev_Ipaddress='',Dev_Wlan_Sta_Num='3'");
    printed::expect_complete(
        ap_list::page(request_of(3)),
        ap_list::opening + std::string(ap_list::closing) +
            R"(,"count":"0","pagenum":"1","pagecount":"0","sumcount":"0","onlinecount":"0","stasumnum":"0"}})");
}

TEST(ApListSearch, cuts_its_texts_behind_254_bytes) {
    for (const std::size_t length : {253U, 254U, 255U, 5000U}) {
        const std::string shown(length < 254 ? length : 254, 'x');
        const std::string text(length, 'x');
        const Recorder recorder;
        EXPECT_EQ(ap_list::page(request_of(3, 0, 0, text.c_str(), text.c_str())), ap_list::nothing);
        EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}).back(),
                  "sqlite3_prepare_v2 select count(*) from DevInfo where Dev_Ipaddress like '%" + shown +
                      "%' and Dev_MAC like '%" + shown + "%' ;");
    }
}

TEST(ApListModes, that_do_not_exist_find_nothing_by_a_statement_without_text) {
    add_mixed_network();
    for (const int mode : {4, 17, 2147483647, -1, -2147483647 - 1}) {
        const Recorder recorder;
        EXPECT_EQ(ap_list::page(request_of(mode)), ap_list::nothing) << mode;
        EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}), totals_and({""}));
        EXPECT_EQ(recorder.calls({"sqlite3_open"}).size(), build_profile.shares_connection ? 1U : 5U);
    }
}

}  // namespace
