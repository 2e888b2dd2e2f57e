// Clients of the service at work at the same time, each on tables that no other one uses.
#include <gtest/gtest.h>

#include <list>

#include "rules/golden/golden.h"
#include "support/database.h"
#include "support/process.h"
#include "support/record.h"
#include "support/service.h"

namespace {

using golden::Table;
using support::difference;
using support::Process;

constexpr std::size_t clients = 8;
constexpr int rounds = 40;
constexpr int kept = 5;  // rows that stay in a table

void remove(const Table &table, int n) {
    if (table.remove) {
        table.remove(("id='" + std::to_string(n) + "'").c_str());
    } else {
        table.remove_row(n);
    }
}

/// Adds row n, takes the oldest one away, and reads row n and the list.
/// @return what is not as it has to be; empty if all is
std::string work(const Table &table, int n) {
    const std::string added = table.record(n);
    table.add(added.data());
    std::string expected;
    const int oldest = n > kept ? n - kept : 0;
    if (oldest > 0) {
        remove(table, oldest);
    }
    for (int i = oldest + 1; i <= n; ++i) {
        expected += table.record(i);
    }
    std::string record(table.record_size, '\x5a');
    table.get(n, record.data());
    std::string list(table.list_size, '\x5a');
    table.list(list.data());
    const auto count = static_cast<std::uint32_t>(n - oldest);
    return difference(added, record) + difference(support::list_of(expected, count, table.list_size), list);
}

/// Works on every eighth table in turn, row by row.
bool use_tables(std::size_t client) {
    const std::vector<Table> tables = golden::tables();
    for (int n = 1; n <= rounds; ++n) {
        for (std::size_t i = client; i < tables.size(); i += clients) {
            const std::string wrong = work(tables[i], n);
            if (!wrong.empty()) {
                ADD_FAILURE() << tables[i].name << " row " << n << ": " << wrong;
                return false;
            }
        }
    }
    return true;
}

TEST(SqldBesideClients, on_other_tables_loses_nothing_and_mixes_nothing_up) {
    ASSERT_GE(golden::tables().size(), clients);
    const support::Service service;
    std::list<Process> processes;
    for (std::size_t client = 0; client < clients; ++client) {
        processes.emplace_back([client] { return use_tables(client); });
    }
    for (Process &process : processes) {
        EXPECT_EQ(process.wait(), 0);
    }
    for (const Table &table : golden::tables()) {
        EXPECT_EQ(support::value("select count(*) || ' ' || min(id) || ' ' || max(id) from " + table.name), "5 36 40")
            << table.name;
    }
}

}  // namespace
