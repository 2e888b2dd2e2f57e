// The access lists: three tables that a number tells apart, two builders that serve any of them.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/database.h"
#include "support/fake_service.h"
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
    FakeService service_{support::reply_of(golden::acl(0).table.record(1))};
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
    const std::string record = golden::acl(0).table.record(1);
    AddAclItem(Pointer(record.data()), GetParam());
    ModifyAclItem(Pointer(record.data()), GetParam());
    DelAclItem("id='1'", GetParam());
    DelAclItemAll(GetParam());
    DelAclItemByMac("00:11:22:AA:BB:CC", GetParam());
    EXPECT_EQ(service_.requests(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(, NoAcl, testing::Values(-1, 3, 4, 256, golden::lowest, golden::highest));

class AnyAcl : public testing::TestWithParam<int> {};

TEST_P(AnyAcl, is_listed_by_either_builder) {
    const Table table = golden::acl(GetParam()).table;
    support::execute(table.inserts(3));
    for (const auto build : {Get2GAclItemListInServer, Get5GAclItemListInServer}) {
        std::string list(list_size, '\x5a');
        build(Pointer(list.data()), table.list_query.c_str());
        EXPECT_EQ(difference(support::list_of(table.records(3), 3, list_size), list), "");
    }
}

INSTANTIATE_TEST_SUITE_P(, AnyAcl, testing::Values(0, 1, 2));

}  // namespace
