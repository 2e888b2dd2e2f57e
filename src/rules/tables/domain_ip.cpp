// Domain-to-IP entries.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = DomainIpItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    TEXT(domain, 2),
    TEXT(ip, 3),
    NUMBER(status, 4),
    TEXT(mark, 5),
};
// clang-format on

// Deliberate: deletes travel under the id of the IP and port filters.
constexpr RuleTable table =
    rule_table<Record>("domain_ip", ROUTERDB_TABLE_DOMAIN_IP, fields).deleting_under(ROUTERDB_TABLE_IP_FILTER);

}  // namespace

int GetDomainIpItemListInServer(DomainIpItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetDomainIpItemList(DomainIpItemList *list) {
    list_items(table, list);
}

void GetDomainIpItem(int id, DomainIpItem *item) {
    get_item(table, id, item);
}

void AddDomainIpItem(const DomainIpItem *item) {
    add_item(table, item);
}

void ModifyDomainIpItem(const DomainIpItem *item) {
    modify_item(table, item);
}

void DelDomainIpItem(const char *condition) {
    delete_items(table, condition);
}
