// How access points are divided into pages.
#include <gtest/gtest.h>

#include "json/ap_list.h"
#include "json/printed.h"
#include "support/named.h"
#include "support/recorder.h"

namespace {

using ap_list::Request;
using support::Recorder;

constexpr int greatest = 2147483647;
constexpr int least = -greatest - 1;

struct Page : support::Named {
    int access_points;
    Request request;
    const char *limit;
    int first;  // of the access points that are shown
    int last;
    const char *totals;  // page number and page count
};

Request page_of(int size, int number, int flag = 0) {
    return {number, 0, 0, flag, nullptr, nullptr, size};
}

constexpr int none = 0;

const Page pages[] = {
    {"FiveOnOnePageCountAsNone", 5, page_of(17, 1), "0,17", 1, 5, R"("pagenum":"1","pagecount":"0")"},
    {"OneLessThanAPageCountAsNone", 16, page_of(17, 1), "0,17", 1, 16, R"("pagenum":"1","pagecount":"0")"},
    {"OneFullPage", 17, page_of(17, 1), "0,17", 1, 17, R"("pagenum":"1","pagecount":"1")"},
    {"OneMoreThanAPageFirst", 18, page_of(17, 1), "0,17", 1, 17, R"("pagenum":"1","pagecount":"2")"},
    {"OneMoreThanAPageSecond", 18, page_of(17, 2), "17,17", 18, 18, R"("pagenum":"2","pagecount":"2")"},
    {"LastFullPage", 34, page_of(17, 2), "17,17", 18, 34, R"("pagenum":"2","pagecount":"2")"},
    {"LastOfThree", 35, page_of(17, 3), "34,17", 35, 35, R"("pagenum":"3","pagecount":"3")"},
    {"FifthOfThree", 35, page_of(17, 5), "68,17", none, none, R"("pagenum":"1","pagecount":"0")"},
    {"FourthOfThree", 35, page_of(17, 4), "51,17", none, none, R"("pagenum":"1","pagecount":"0")"},
    {"SecondOfOne", 5, page_of(17, 2), "17,17", none, none, R"("pagenum":"1","pagecount":"0")"},
    {"Zero", 35, page_of(17, 0), "-17,17", 1, 17, R"("pagenum":"1","pagecount":"3")"},
    {"Negative", 35, page_of(17, -1), "-34,17", 1, 17, R"("pagenum":"-1","pagecount":"3")"},
    {"NegativeBelowOnePage", 5, page_of(17, -1), "-34,17", 1, 5, R"("pagenum":"-1","pagecount":"0")"},
    {"Greatest", 35, page_of(17, greatest), "2147483614,17", none, none, R"("pagenum":"1","pagecount":"0")"},
    {"Least", 35, page_of(17, least), "2147483631,17", none, none, R"("pagenum":"1","pagecount":"0")"},
    {"OnePerPage", 3, page_of(1, 2), "1,1", 2, 2, R"("pagenum":"2","pagecount":"3")"},
    {"GreatestSize", 3, page_of(greatest, 1), "0,2147483647", 1, 3, R"("pagenum":"1","pagecount":"0")"},
    {"OffsetThatWraps", 3, page_of(greatest, 3), "-2,2147483647", 1, 3, R"("pagenum":"1","pagecount":"0")"},
    {"SizeZeroIsSeventeen", 18, page_of(0, 2), "17,17", 18, 18, R"("pagenum":"2","pagecount":"2")"},
    {"NegativeSizeIsSeventeen", 18, page_of(least, 1), "0,17", 1, 17, R"("pagenum":"1","pagecount":"2")"},
    {"FlagOneIsFourteen", 15, page_of(5, 1, 1), "0,14", 1, 14, R"("pagenum":"1","pagecount":"2")"},
    {"FlagTwoIsFourteen", 15, page_of(5, 2, 2), "14,14", 15, 15, R"("pagenum":"2","pagecount":"2")"},
    {"FlagThreeIsNot", 15, page_of(5, 3, 3), "10,5", 11, 15, R"("pagenum":"3","pagecount":"3")"},
};

class ApListPages : public testing::TestWithParam<Page> {};

TEST_P(ApListPages, show_their_access_points) {
    const Page &page = GetParam();
    ap_list::add_network(page.access_points);
    std::string expected = ap_list::opening;
    for (int i = page.first; i != none && i <= page.last; ++i) {
        expected += ap_list::element(std::to_string(i), "10.0.0." + std::to_string(i), "", "", "0");
    }
    expected += ap_list::closing;
    expected += ",\"count\":\"" + std::to_string(page.first == none ? 0 : page.last - page.first + 1) + "\"," +
                page.totals + ",\"sumcount\":\"" + std::to_string(page.access_points) +
                "\",\"onlinecount\":\"0\",\"stasumnum\":\"0\"}}";

    const Recorder recorder;
    printed::expect_complete(ap_list::page(page.request), expected);
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}).back(),
              "sqlite3_prepare_v2 select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit " +
                  std::string(page.limit) + " ;");
}

INSTANTIATE_TEST_SUITE_P(All, ApListPages, testing::ValuesIn(pages), [](const auto &test) { return test.param.name; });

TEST(ApListOrder, is_that_of_the_addresses_as_numbers) {
    ap_list::add(1, "Dev_Ipaddress='10.0.0.10',Dev_IPSUM=167772170");
    ap_list::add(2, "Dev_Ipaddress='10.0.0.9',Dev_IPSUM=167772169");
    ap_list::add(3, "Dev_Ipaddress='9.0.0.1',Dev_IPSUM=150994945");
    const printed::List list = printed::parse(ap_list::page({}), "ApDevList");
    EXPECT_EQ(printed::values(list, "m_dev_ip"), (std::vector<std::string>{"9.0.0.1", "10.0.0.9", "10.0.0.10"}));
}

TEST(ApListOrder, holds_over_all_pages_of_a_group) {
    ap_list::add_network(35);
    ap_list::add(40, "Dev_Ipaddress='10.1.0.1',Dev_Wlan_GroupId='2'");
    for (int i = 41; i <= 55; ++i) {
        ap_list::add(i, "Dev_Ipaddress='10.1.0." + std::to_string(i) + "',Dev_Wlan_GroupId='3'");
    }
    std::vector<std::string> numbers;
    for (const int page : {1, 2}) {
        const printed::List list = printed::parse(ap_list::page({page, 0, 2, 1, nullptr, nullptr, 17}), "ApDevList");
        for (const std::string &number : printed::values(list, "m_sn")) {
            numbers.push_back(number);
        }
    }
    EXPECT_EQ(numbers, (std::vector<std::string>{"41", "42", "43", "44", "45", "46", "47", "48", "49", "50", "51", "52",
                                                 "53", "54", "55"}));
}

}  // namespace
