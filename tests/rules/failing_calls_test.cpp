// The n-th call of the platform fails, for every n: the client operations leave nothing behind and no half result.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>

#include "rules/golden/golden.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/streams.h"
#include "support/wrapped_calls.h"

namespace {

using golden::Table;
using support::FakeService;
using support::WrappedCalls;

struct Operation : support::Named {
    std::function<void(golden::Pointer)> run;
    std::string reply;
    std::string before;  // the caller's buffer
    std::string when_failed;
    std::string when_done;
    int usual_calls;     // that can fail
    int outgrown_texts;  // statements that take a block, before anything else does
};

/// A condition that outgrows the room that a statement has at first.
const std::string &long_condition() {
    static const std::string condition = "name='" + std::string(3000, 'c') + "'";
    return condition;
}

/// Whether the statements that write row 1 do.
bool outgrows_its_room(const Table &table) {
    constexpr std::size_t room = 2560;
    return golden::filled(table.insert, table.places, table.row(1)).size() > room;
}

void add_operations(std::vector<Operation> &operations, const Table &table) {
    const auto get = [table](golden::Pointer item) { table.get(1, item); };
    const auto remove = [table](golden::Pointer /*none*/) { table.remove_first(); };
    const auto remove_many = [table](golden::Pointer /*none*/) { table.remove(long_condition().c_str()); };
    const std::string record = table.record(1);
    const std::string odd_list(table.list_size, '\x5a');
    const std::string odd_record(table.record_size, '\x5a');
    const std::string no_list(table.list_size, '\0');
    const std::string no_record(table.record_size, '\0');
    const std::string list = support::list_of(record, 1, table.list_size);
    const std::string reply = support::reply_of(record);
    constexpr int usual = 7;  // socket, connect, two sends, two receives, the block of the data
    constexpr int of_records = support::build_profile.receives_in_place ? usual - 1 : usual;  // which need no block
    operations.push_back({table.name + " list", table.list, reply, odd_list, no_list, list, of_records, 0});
    operations.push_back({table.name + " get", get, reply, odd_record, no_record, record, of_records, 0});
    const int room = outgrows_its_room(table) ? 1 : 0;
    const int add = usual * table.add_requests();
    const int modify = usual * table.modify_requests();
    operations.push_back({table.name + " add", table.add, reply, record, record, record, add, room});
    operations.push_back({table.name + " modify", table.modify, reply, record, record, record, modify, room});
    operations.push_back({table.name + " delete", remove, reply, "", "", "", usual, 0});
    if (table.remove) {
        operations.push_back({table.name + " delete, long condition", remove_many, reply, "", "", "", usual, 1});
    }
}

std::vector<Operation> operations() {
    std::vector<Operation> operations;
    for (const Table &table : golden::tables()) {
        add_operations(operations, table);
    }
    return operations;
}

/// Runs an operation whose n-th call of a function fails, and looks at what it leaves.
/// @return whether there was such a call
bool fails(const Operation &operation, const std::string &function, int n) {
    SCOPED_TRACE(function + " " + std::to_string(n));
    FakeService service(operation.reply);
    const int descriptors = support::open_descriptors();
    std::string buffer = operation.before;
    bool failed = false;
    support::streams_of([&] {
        WrappedCalls calls;
        calls.fail(function, n, EIO);
        operation.run(buffer.data());
        failed = calls.failed();
        EXPECT_EQ(calls.blocks(), std::vector<std::size_t>{});
    });
    const std::size_t requests = service.requests().size();
    EXPECT_EQ(support::difference(failed ? operation.when_failed : operation.when_done, buffer), "");
    EXPECT_EQ(support::open_descriptors(), descriptors);
    if (failed && function == "malloc" && n <= operation.outgrown_texts) {
        EXPECT_EQ(requests, 0U) << "a statement that is not complete was sent";
    }
    return failed;
}

class FailingCall : public testing::TestWithParam<Operation> {};

TEST_P(FailingCall, leaves_nothing_behind_and_no_half_result) {
    int failures = 0;
    for (const char *function : {"socket", "connect", "send", "recv", "malloc"}) {
        for (int n = 1; fails(GetParam(), function, n); ++n) {
            ++failures;
        }
    }
    EXPECT_EQ(failures, GetParam().usual_calls + GetParam().outgrown_texts);
}

INSTANTIATE_TEST_SUITE_P(, FailingCall, testing::ValuesIn(operations()));

/// The result of a builder whose n-th close fails.
int result_of(const Table &table, const std::string &sql, int n) {
    std::string list(table.list_size, '\0');
    int result = 1;
    support::streams_of([&] {
        WrappedCalls calls;
        calls.fail("close", n, EIO);
        result = table.build(list.data(), sql.c_str());
    });
    return result;
}

/// What its last close returned is all that a builder's result tells.
class BuilderResult : public testing::TestWithParam<Table> {};

TEST_P(BuilderResult, is_that_of_closing_the_lock_file) {
    for (const std::string &sql : {GetParam().list_query, std::string("select * from nowhere;")}) {
        EXPECT_EQ(result_of(GetParam(), sql, 1), -1);
        EXPECT_EQ(result_of(GetParam(), sql, 2), 0) << "there is a second descriptor of its own";
    }
}

TEST_P(BuilderResult, is_that_of_closing_the_lock_file_without_a_database_too) {
    std::rename("/etc/config/systemconf/database", "/etc/elsewhere");
    EXPECT_EQ(result_of(GetParam(), GetParam().list_query, 1), -1);
    EXPECT_EQ(result_of(GetParam(), GetParam().list_query, 2), 0);
}

INSTANTIATE_TEST_SUITE_P(, BuilderResult, testing::ValuesIn(golden::tables()));

}  // namespace
