#include "rules/golden/golden.h"

#include "support/database.h"

namespace golden {

std::string Table::inserts(int n) const {
    std::string statements = "begin;";
    for (int i = 1; i <= n; ++i) {
        statements += row(i);
    }
    return statements + "commit;";
}

std::string Table::records(int n) const {
    std::string records;
    for (int i = 1; i <= n; ++i) {
        records += record(i);
    }
    return records;
}

void Table::remove_first() const {
    if (remove) {
        remove("id='1'");
    } else {
        remove_row(1);
    }
}

void Built::prepare() const {
    support::execute(rows);
    if (!leases.empty()) {
        support::write_file("/var/dhcp.leases", leases);
    }
    if (!catalogue.empty()) {
        support::Database(support::catalogue_database).execute(catalogue);
    }
}

std::string query(std::uint32_t table_id, const std::string &text) {
    return std::to_string(table_id) + " 1 " + std::to_string(text.size()) + " " + text;
}

std::string execute(std::uint32_t table_id, const std::string &text) {
    return std::to_string(table_id) + " 2 " + std::to_string(text.size()) + " " + text;
}

std::vector<Golden> all() {
    // clang-format off
    return {
        filter_url(),
        user_timegroup(),
        acl(0),
        acl(1),
        acl(2),
        domain_ip(),
        famliymember(),
        forword_ipport(),
        smartqos_whitelist(),
        user_ipgroup(),
        user_urlinfo(),
        dhcpserverstaticbind(),
        filter_mac(),
        filter_ipport(),
        qos_rule(),
        behavior_rule(),
    };
    // clang-format on
}

std::vector<Table> tables() {
    std::vector<Table> tables;
    for (const Golden &golden : all()) {
        tables.push_back(golden.table);
    }
    return tables;
}

std::vector<Row> rows() {
    std::vector<Row> rows;
    for (const Golden &golden : all()) {
        for (const Built &built : golden.built) {
            rows.push_back({golden.table.name + ": " + built.name, golden.table, built});
        }
    }
    return rows;
}

}  // namespace golden
