// The statements that the client operations send: text, table and operation.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/fake_service.h"

namespace {

using golden::execute;
using golden::Golden;
using golden::Operation;
using golden::query;
using golden::Table;

void add_reading(std::vector<Operation> &operations, const Table &table) {
    const auto list = [table] { table.list(std::string(table.list_size, '\0').data()); };
    const auto get = [table](int id) {
        return [table, id] { table.get(id, std::string(table.record_size, '\0').data()); };
    };
    operations.push_back({table.name + " list", list, {query(table.id, table.list_query)}});
    operations.push_back({table.name + " get", get(7), {query(table.id, table.get_query)}});
    operations.push_back(
        {table.name + " get with the lowest id", get(golden::lowest), {query(table.id, table.lowest_query)}});
}

void add_changing(std::vector<Operation> &operations, const Table &table, const golden::Sample &sample) {
    const auto call = [&](const std::function<void(golden::Pointer)> &operation) {
        return [operation, record = sample.record] { operation(record.data()); };
    };
    const auto behind = [&](std::vector<std::string> requests, const std::string &statement) {
        requests.push_back(execute(table.id, statement));
        return requests;
    };
    operations.push_back(
        {table.name + " add: " + sample.name, call(table.add), behind(sample.before_insert, sample.insert)});
    operations.push_back(
        {table.name + " modify: " + sample.name, call(table.modify), behind(sample.before_update, sample.update)});
}

void add_removing(std::vector<Operation> &operations, const Table &table) {
    if (!table.remove) {
        return;
    }
    const auto add = [&](const std::string &name, const char *condition, const std::string &sent) {
        const std::string copy = condition != nullptr ? condition : "";
        const auto remove = [table, copy, null = condition == nullptr] { table.remove(null ? nullptr : copy.c_str()); };
        operations.push_back({table.name + " delete" + name,
                              remove,
                              {execute(table.remove_id, table.remove_until_condition + sent + ";")}});
    };
    // The room that a statement has at first is 2560 bytes.
    const std::string long_condition = "name='" + std::string(4000, 'n') + "'";
    const std::string longer_condition = "name='" + std::string(60'000, 'n') + "'";
    add("", "id='3' or id='7'", "id='3' or id='7'");
    add(" with a long condition", long_condition.c_str(), long_condition);
    add(" with a longer condition", longer_condition.c_str(), longer_condition);
    add(" with an empty condition", "", "");
    add(" without a condition", nullptr, "");
}

std::vector<Operation> operations() {
    std::vector<Operation> operations;
    for (const Golden &golden : golden::all()) {
        add_reading(operations, golden.table);
        for (const golden::Sample &sample : golden.samples) {
            add_changing(operations, golden.table, sample);
        }
        add_removing(operations, golden.table);
        operations.insert(operations.end(), golden.others.begin(), golden.others.end());
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
