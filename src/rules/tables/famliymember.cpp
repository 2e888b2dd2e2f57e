// Family members.
#include "core/text.h"
#include "rules/client_ops.h"
#include "rules/list_builder.h"

using namespace routerdb;

namespace {

using Record = FamliyMemberItem;

// clang-format off
constexpr Field fields[] = {
    TEXT(name, 1),
    TEXT(mac, 2),
    NUMBER(devtype, 3),
    TEXT(mark, 4),
};
// clang-format on

constexpr RuleTable table = rule_table<Record>("famliymember", ROUTERDB_TABLE_FAMLIY_MEMBER, fields);

}  // namespace

int GetFamliyMemberItemListInServer(FamliyMemberItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetFamliyMemberItemList(FamliyMemberItemList *list) {
    list_items(table, list);
}

void GetFamliyMemberItem(int id, FamliyMemberItem *item) {
    get_item(table, id, item);
}

void AddFamliyMemberItem(const FamliyMemberItem *item) {
    add_item(table, item);
}

void ModifyFamliyMemberItem(const FamliyMemberItem *item) {
    modify_item(table, item);
}

void DelFamliyMemberItem(const char *condition) {
    delete_items(table, condition);
}
