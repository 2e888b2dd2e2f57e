// The statements that the client operations send: text, table and operation.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "rules/golden/samples.h"
#include "support/fake_service.h"
#include "support/profile.h"

namespace {

using golden::execute;
using golden::filled;
using golden::query;
using golden::Table;

/// A client operation and the requests that it sends.
struct Operation : support::Named {
    std::function<void()> run;
    std::vector<std::string> requests;
};

void add_reading(std::vector<Operation> &operations, const Table &table) {
    const auto list = [&table] { table.list(std::string(table.list_size, '\0').data()); };
    operations.push_back({table.name + " list", list, {query(table.id, table.list_query)}});
    for (const int id : {7, -8, golden::lowest}) {
        const std::string name = std::to_string(id);
        const auto get = [&table, id] { table.get(id, std::string(table.record_size, '\0').data()); };
        operations.push_back(
            {table.name + " get " + name, get, {query(table.id, filled(table.get_query, "id", name))}});
    }
}

void add_changing(std::vector<Operation> &operations, const Table &table) {
    for (const golden::Sample &sample : golden::samples(table)) {
        const auto call = [&](const golden::Write &operation) {
            return [&operation, record = sample.record] { operation(record.data()); };
        };
        operations.push_back({table.name + " add: " + sample.name, call(table.add), sample.add});
        operations.push_back({table.name + " modify: " + sample.name, call(table.modify), sample.modify});
    }
}

void add_removing_where(std::vector<Operation> &operations, const Table &table) {
    const auto add = [&](const std::string &name, const std::function<void()> &remove, const std::string &condition) {
        const std::string statement = filled(table.removal, "condition", condition);
        const bool refused = condition.empty() && support::build_profile.checks_conditions;
        operations.push_back({table.name + " delete " + name, remove,
                              refused ? std::vector<std::string>{} : std::vector{execute(table.remove_id, statement)}});
    };
    for (const auto &[name, condition] : {
             std::pair<const char *, std::string>{"two rows", "id='3' or id='7'"},
             {"with a long condition", "name='" + std::string(4000, 'n') + "'"},
             {"with a longer condition", "name='" + std::string(60'000, 'n') + "'"},
             {"with an empty condition", ""},
         }) {
        add(
            name, [&table, condition = condition] { table.remove(condition.c_str()); }, condition);
    }
    add(
        "without a condition", [&table] { table.remove(nullptr); }, "");
    if (table.remove_of_kind) {
        for (const int kind : {1, 2, 0}) {
            add(
                "by id, kind " + std::to_string(kind), [&table, kind] { table.remove_of_kind("id='1'", kind); },
                "id='1'");
        }
    }
}

void add_removing_row(std::vector<Operation> &operations, const Table &table) {
    for (const int id : {7, 0, golden::lowest, golden::highest}) {
        const std::string name = std::to_string(id);
        operations.push_back({table.name + " delete " + name,
                              [&table, id] { table.remove_row(id); },
                              {execute(table.remove_id, filled(table.removal, "id", name))}});
    }
}

std::vector<Operation> operations() {
    std::vector<Operation> operations;
    for (const Table &table : golden::tables()) {
        add_reading(operations, table);
        add_changing(operations, table);
        table.remove ? add_removing_where(operations, table) : add_removing_row(operations, table);
        if (table.remove_all) {
            operations.push_back(
                {table.name + " delete all", table.remove_all, {execute(table.remove_id, table.removal_of_all)}});
        }
    }
    return operations;
}

class ClientOperation : public testing::TestWithParam<Operation> {};

TEST_P(ClientOperation, sends_its_requests_and_no_other) {
    support::FakeService service(support::reply_of(""));
    GetParam().run();
    std::vector<std::string> requests;
    for (const std::string &request : service.requests()) {
        requests.push_back(support::readable(request));
    }
    EXPECT_EQ(requests, GetParam().requests);
}

INSTANTIATE_TEST_SUITE_P(, ClientOperation, testing::ValuesIn(operations()));

TEST(TableIds, of_the_access_lists_are_exported) {
    EXPECT_EQ(acl_wifi_id[0], 15U);
    EXPECT_EQ(acl_wifi_id[1], 16U);
    EXPECT_EQ(acl_wifi_id[2], 17U);
}

}  // namespace
