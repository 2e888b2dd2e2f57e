// Elements that outgrow the stack, and what becomes of a list when there is no memory for one.
#include <gtest/gtest.h>

#include <cerrno>

#include "json/json_list.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/streams.h"
#include "support/wrapped_calls.h"

namespace {

namespace json = routerdb::json;
using routerdb::StackText;
using support::WrappedCalls;

const std::string long_number = std::string(20000, '0') + "3";

/// The applications of that class, of which there are two; the n-th block that the library asks for is not to be had.
std::string applications(int n) {
    support::Database(support::catalogue_database)
        .execute("delete from App_Info; insert into App_Info values(1,3,'A','a','f','m'),(2,3,'B','b','g','n');");
    return support::streams_of([n] {
               WrappedCalls calls;
               calls.fail("malloc", n, ENOMEM);
               errno = support::found_errno;
               GetAppInfoItemListByClassid(long_number.c_str());
               const int left = errno;
               EXPECT_TRUE(!support::build_profile.tells_failures || left == (n == 0 ? support::found_errno : ENOMEM));
               EXPECT_EQ(calls.failed(), n != 0);
               EXPECT_EQ(calls.blocks(), std::vector<std::size_t>());
           })
        .output;
}

TEST(LongElements, are_printed_whole) {
    EXPECT_EQ(applications(0), R"({"ItemList":{"data":[{"id":"1","class_id":")" + long_number +
                                   R"(","appname":"A","appname_en":"a","features":"f","mark":"m"},)"
                                   R"({"id":"2","class_id":")" +
                                   long_number +
                                   R"(","appname":"B","appname_en":"b","features":"g","mark":"n"},)"
                                   R"({"id":"","class_id":"","appname":"","appname_en":"","features":"","mark":"" }],)"
                                   R"("count":"2"}})");
}

TEST(LongElements, leave_the_list_unfinished_without_memory) {
    EXPECT_EQ(applications(1), R"({"ItemList":{"count":"0"}})");  // for the count
    EXPECT_EQ(applications(2), R"({"ItemList":{"data":[)");       // for the query
}

// By itself: which block is the element's depends on what was asked before.
TEST(LongElements, leave_the_list_unfinished_where_the_first_one_has_no_memory) {
    EXPECT_EQ(applications(3), R"({"ItemList":{"data":[)");
}

/// A list that is printed without the first block of memory that it needs. In the exact profile no element of records
/// outgrows the stack.
void expect_reason_without_memory(void (*print)()) {
    support::expect_errno(ENOMEM, [print] {
        WrappedCalls calls;
        calls.fail("malloc", 1, ENOMEM);
        print();
        EXPECT_EQ(calls.failed(), support::build_profile.escapes_json);
    });
    support::expect_errno(support::found_errno, print);
}

TEST(LongElements, of_escaped_values_tell_the_reason_without_memory) {
    const std::string value = "=replace(hex(zeroblob(500)), '0', char(1))";  // six characters each
    support::Database(support::main_database)
        .execute("insert into DevInfo(Dev_Ipaddress) values('1.1.1.1'); update DevInfo set Dev_Name" + value +
                 ", Dev_SwName" + value + ", Dev_SwVer" + value + ", Dev_Model_Name" + value +
                 "; insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(1); update WlanZeroCfgGroupInfo set "
                 "WlanGroup_Name" +
                 value + ", WlanGroup_Wlan1_Ssid" + value + ", WlanGroup_Wlan1_Wep_Value" + value +
                 ", WlanGroup_Wlan1_Psk_Value" + value + ", WlanGroup_Wlan5_Psk_Value" + value + ";");
    expect_reason_without_memory([] { GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); });
    expect_reason_without_memory([] { GetWlanZeroCfgGroupList(); });
}

constexpr json::Key keys[] = {{"first", json::given(0)}, {"second", json::given(1)}};

/// Prints three elements, the one in the middle longer than the text's buffer.
std::string elements(int failing_malloc) {
    const std::string long_text(100, 'x');
    return support::streams_of([&] {
               WrappedCalls calls;
               calls.fail("malloc", failing_malloc, ENOMEM);
               StackText<64> text;
               json::List list(keys, text);
               for (const std::string &value : {std::string("a"), long_text, std::string("c")}) {
                   const std::string_view given[] = {"1", value};
                   list.print(given);
               }
               EXPECT_EQ(list.count(), failing_malloc == 0 ? 3 : 1);
               list.close(list.count());
           })
        .output;
}

TEST(ElementsWithoutMemory, are_not_printed_nor_is_anything_behind_them) {
    EXPECT_EQ(elements(0), R"({"first":"1","second":"a"},{"first":"1","second":")" + std::string(100, 'x') +
                               R"("},{"first":"1","second":"c"},{"first":"","second":""}],"count":"3"}})");
    EXPECT_EQ(elements(1), R"({"first":"1","second":"a"},)");
}

}  // namespace
