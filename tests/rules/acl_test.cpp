// The access lists: three tables that a number tells apart, two builders that serve any of them.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "rules/golden/samples.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/record.h"

namespace {

using golden::Pointer;
using golden::Table;
using support::difference;
using support::FakeService;

constexpr std::size_t list_size = 61444;
constexpr std::size_t record_size = 480;

class NoAcl : public testing::TestWithParam<int> {
protected:
    FakeService service_{support::reply_of(golden::table("wifi0acl").record(1))};
};

TEST_P(NoAcl, is_listed_and_read_without_a_request) {
    std::string list(list_size, '\x5a');
    std::string item(record_size, '\x5a');
    GetAclItemList(Pointer(list.data()), GetParam());
    GetAclItem(1, Pointer(item.data()), GetParam());
    EXPECT_EQ(difference(std::string(list_size, '\0'), list), "");
    EXPECT_EQ(difference(std::string(record_size, '\0'), item), "");
    EXPECT_EQ(service_.requests(), std::vector<std::string>{});
}

TEST_P(NoAcl, is_changed_without_a_request) {
    const std::string record = golden::table("wifi0acl").record(1);
    AddAclItem(Pointer(record.data()), GetParam());
    ModifyAclItem(Pointer(record.data()), GetParam());
    DelAclItem("id='1'", GetParam());
    DelAclItemAll(GetParam());
    DelAclItemByMac("00:11:22:AA:BB:CC", GetParam());
    EXPECT_EQ(service_.requests(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(, NoAcl, testing::Values(-1, 3, 4, 256, golden::lowest, golden::highest));

class AnyAcl : public testing::TestWithParam<int> {
protected:
    const std::string name_ = "wifi" + std::to_string(GetParam()) + "acl";
};

TEST_P(AnyAcl, is_listed_by_either_builder) {
    const Table &table = golden::table(name_);
    support::execute(table.inserts(3));
    for (const auto build : {Get2GAclItemListInServer, Get5GAclItemListInServer}) {
        std::string list(list_size, '\x5a');
        build(Pointer(list.data()), table.list_query.c_str());
        EXPECT_EQ(difference(support::list_of(table.records(3), 3, list_size), list), "");
    }
}

TEST_P(AnyAcl, loses_the_rows_of_a_mac_address) {
    const std::string odd = "it's %s" + std::string(4000, 'a');
    FakeService service(support::reply_of(""));
    for (const char *mac : {"00:11:22:AA:BB:CC", "", static_cast<const char *>(nullptr), odd.c_str()}) {
        DelAclItemByMac(mac, GetParam());
    }
    std::vector<std::string> expected;
    for (const std::string &mac : {std::string("00:11:22:AA:BB:CC"), std::string(), std::string(), odd}) {
        expected.push_back(golden::execute(static_cast<std::uint32_t>(15 + GetParam()),
                                           "delete from " + name_ + " where mac='" + support::as_value(mac) + "';"));
    }
    std::vector<std::string> requests;
    for (const std::string &request : service.requests()) {
        requests.push_back(support::readable(request));
    }
    EXPECT_EQ(requests, expected);
}

INSTANTIATE_TEST_SUITE_P(, AnyAcl, testing::Values(0, 1, 2));

}  // namespace
