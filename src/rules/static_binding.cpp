#include "rules/static_binding.h"

#include "sqlservice/client.h"
#include "text/number.h"
#include "text/text.h"

namespace routerdb {

namespace {

/// A column that no two rows share.
struct Address {
    const char *column;
    std::string_view value;
    int clash;
};

/// "select count(*) from dhcpserverstaticbind where ip='192.168.1.2';", sent as a scalar query.
int ask(const char *what, const RuleTable &table, const Address &address) {
    SqlText statement;
    statement.append("select ").append(what).append(" from ").append(table.name);
    statement.append(" where ").append(address.column).append("=").append_quoted(address.value).append(";");
    const Reply reply = send(ROUTERDB_TABLE_SCALAR, ROUTERDB_QUERY, statement);
    return number_in({reply.data(), reply.size()});
}

/// @param clashes  whether an address, which some row or none may have, stands in the way
template <typename Clashes>
int first_clash(const DhcpStaticItem &item, Clashes clashes) {
    const Address addresses[] = {
        {"ip", field_text(item.ip, sizeof(item.ip)), ip_taken},
        {"mac", field_text(item.mac, sizeof(item.mac)), mac_taken},
    };
    for (const Address &address : addresses) {
        if (clashes(address)) {
            return address.clash;
        }
    }
    return no_clash;
}

}  // namespace

int clash_of_new_binding(const RuleTable &table, const DhcpStaticItem &item) {
    return first_clash(item, [&](const Address &address) { return ask("count(*)", table, address) > 0; });
}

int clash_of_changed_binding(const RuleTable &table, const DhcpStaticItem &item) {
    return first_clash(item, [&](const Address &address) {
        const int count = ask("count(*)", table, address);
        const int id = ask("id", table, address);  // asked in any case
        return count > 0 && id != item.id;
    });
}

}  // namespace routerdb
