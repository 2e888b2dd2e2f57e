// What the client operations leave in errno.
#include <gtest/gtest.h>

#include <cerrno>

#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/fake_service.h"
#include "support/left_errno.h"

namespace {

using golden::Table;
using support::expect_errno;
using support::found_errno;

class ClientErrno : public testing::TestWithParam<Table> {
protected:
    /// Of every operation that the table has, and that sends something.
    static void expect(int reason) {
        const Table &table = GetParam();
        std::string list(table.list_size, '\0');
        std::string record = table.record(1);
        expect_errno(reason, [&] { table.list(list.data()); });
        expect_errno(reason, [&] { table.get(1, record.data()); });
        record = table.record(1);
        expect_errno(reason, [&] { table.add(record.data()); });
        expect_errno(reason, [&] { table.modify(record.data()); });
        expect_errno(reason, [&] { table.remove_first(); });
        if (table.remove_all) {
            expect_errno(reason, [&] { table.remove_all(); });
        }
        expect_of_conditions(reason, "id='7'");
    }

    static void expect_of_conditions(int reason, const char *condition) {
        const Table &table = GetParam();
        if (table.remove) {
            expect_errno(reason, [&] { table.remove(condition); });
        }
        if (table.remove_of_kind) {
            expect_errno(reason, [&] { table.remove_of_kind(condition, 1); });
        }
    }
};

TEST_P(ClientErrno, tells_that_there_is_no_service) {
    expect(ENOENT);
}

TEST_P(ClientErrno, is_left_alone_by_success) {
    const support::FakeService service(support::reply_of(""));
    expect(found_errno);
}

TEST_P(ClientErrno, tells_of_a_condition_that_is_refused) {
    const support::FakeService service(support::reply_of(""));
    expect_of_conditions(EINVAL, "1");
}

INSTANTIATE_TEST_SUITE_P(, ClientErrno, testing::ValuesIn(golden::tables()), testing::PrintToStringParamName());

TEST(ClientErrnoOfAccessLists, tells_of_a_number_that_none_has) {
    static AclItemList list;
    static AclItem item;
    for (const int number : {-1, 3}) {
        expect_errno(EINVAL, [number] { GetAclItemList(&list, number); });
        expect_errno(EINVAL, [number] { GetAclItem(1, &item, number); });
        expect_errno(EINVAL, [number] { AddAclItem(&item, number); });
        expect_errno(EINVAL, [number] { ModifyAclItem(&item, number); });
        expect_errno(EINVAL, [number] { DelAclItem("id=1", number); });
        expect_errno(EINVAL, [number] { DelAclItemAll(number); });
        expect_errno(EINVAL, [number] { DelAclItemByMac("06", number); });
    }
}

TEST(ClientErrnoOfAccessLists, tells_that_there_is_no_service) {
    expect_errno(ENOENT, [] { DelAclItemByMac("06", 0); });
}

}  // namespace
