// Static DHCP bindings.
#include "rules/tables/dhcpserverstaticbind.h"

#include "rules/client_ops.h"
#include "rules/list_builder.h"
#include "rules/static_binding.h"
#include "text/text.h"

using namespace routerdb;
using namespace routerdb::tables::dhcpserverstaticbind;

int GetDhcpStaticItemListInServer(DhcpStaticItemList *list, const char *sql) {
    return build_item_list(table, list, or_empty(sql));
}

void GetDhcpStaticItemList(DhcpStaticItemList *list) {
    list_items(table, list);
}

void GetDhcpStaticItem(int id, DhcpStaticItem *item) {
    get_item(table, id, item);
}

int AddDhcpStaticItem(const DhcpStaticItem *item) {
    const int clash = clash_of_new_binding(table, *item);
    if (clash == no_clash) {
        add_item(table, item);
    }
    return clash;
}

int ModifyDhcpStaticItem(const DhcpStaticItem *item) {
    const int clash = clash_of_changed_binding(table, *item);
    if (clash == no_clash) {
        modify_item(table, item);
    }
    return clash;
}

void DelDhcpStaticItem(const char *condition) {
    delete_items(table, condition);
}
