// Values of rules, as they are sent to the SQL service.
#include <sqlite3.h>

#include "fuzz/fuzz.h"
#include "routerdb.h"
#include "support/database.h"

// Modern alone: in exact values stand between quotes as they are, and callers keep apostrophes out of them.
const char fuzz::what[] = "values of rules: one statement, that writes its own row and nothing else";

namespace {

using fuzz::require;

sqlite3 *db = nullptr;
std::string written;  // the table that statements are prepared for

int permit(void * /*unused*/, int action, const char *table, const char *column, const char * /*database*/,
           const char * /*trigger*/) {
    const bool writes = action == SQLITE_INSERT || action == SQLITE_UPDATE;
    const bool finds_its_row = action == SQLITE_READ && sqlite3_stricmp(column, "id") == 0;
    return (writes || finds_its_row) && written == table ? SQLITE_OK : SQLITE_DENY;
}

/// What a call gives the service.
template <typename Record>
struct Writers {
    const char *table;
    void (*add)(const Record *);
    void (*modify)(const Record *);
};

void add_binding(const DhcpStaticItem *item) {
    AddDhcpStaticItem(item);
}

void modify_binding(const DhcpStaticItem *item) {
    ModifyDhcpStaticItem(item);
}

void add_entry(const AclItem *item) {
    AddAclItem(item, 1);
}

void modify_entry(const AclItem *item) {
    ModifyAclItem(item, 1);
}

void check(const std::string &sql) {
    sqlite3_stmt *statement = nullptr;
    const char *rest = nullptr;
    const int code = sqlite3_prepare_v2(db, sql.c_str(), -1, &statement, &rest);
    const std::string shown = statement != nullptr ? sqlite3_sql(statement) : "";
    sqlite3_finalize(statement);
    require(code == SQLITE_OK && shown == sql, "a value that is part of its statement: " + sql);
}

/// Fills a record with the bytes of the input, again and again where it is longer.
template <typename Record>
void write(const Writers<Record> &writers, fuzz::Input input) {
    const bool adds = input.take_number(2) == 0;
    const std::string bytes = input.take_rest();
    fuzz::Room room(sizeof(Record));
    for (std::size_t i = 0; i < sizeof(Record); ++i) {
        room.text()[i] = bytes.empty() ? '\0' : bytes[i % bytes.size()];
    }
    written = writers.table;
    (adds ? writers.add : writers.modify)(room.as<Record>());
    const auto &sent = fuzz::statements();
    require(!sent.empty(), "nothing is sent");
    check(sent.back());
}

#define TABLE(table, Record, add, modify) [](fuzz::Input input) { write(Writers<Record>{#table, add, modify}, input); }

constexpr void (*tables[])(fuzz::Input) = {
    TABLE(dhcpserverstaticbind, DhcpStaticItem, add_binding, modify_binding),
    TABLE(filter_url, UrlFilterItem, AddUrlFilterItem, ModifyUrlFilterItem),
    TABLE(filter_mac, MacFilterItem, AddMacFilterItem, ModifyMacFilterItem),
    TABLE(filter_ipport, IpFilterItem, AddIpFilterItem, ModifyIpFilterItem),
    TABLE(user_timegroup, TimeGroupItem, AddTimeGroupItem, ModifyTimeGroupItem),
    TABLE(user_ipgroup, IpGroupItem, AddIpGroupItem, ModifyIpGroupItem),
    TABLE(smartqos_whitelist, SmartQosItem, AddSmartQosItem, ModifySmartQosItem),
    TABLE(user_urlinfo, UserUrlItem, AddUserUrlItem, ModifyUserUrlItem),
    TABLE(famliymember, FamliyMemberItem, AddFamliyMemberItem, ModifyFamliyMemberItem),
    TABLE(forword_ipport, PortFwItem, AddPortFwItem, ModifyPortFwItem),
    TABLE(qos_rule, QosItem, AddQosItem, ModifyQosItem),
    TABLE(behavior_rule, BehaviorItem, AddBehaviortem, ModifyBehaviorItem),
    TABLE(wifi1acl, AclItem, add_entry, modify_entry),
    TABLE(domain_ip, DomainIpItem, AddDomainIpItem, ModifyDomainIpItem),
};

}  // namespace

void fuzz::prepare() {
    sqlite3_open_v2(support::main_database, &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_set_authorizer(db, permit, nullptr);
}

void fuzz::run(Input input) {
    const auto table = tables[input.take_number(sizeof(tables) / sizeof(*tables))];
    answer_with(std::string(12, '\0'));
    table(input);
}
