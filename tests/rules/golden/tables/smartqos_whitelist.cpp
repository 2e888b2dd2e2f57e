#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> smartqos_whitelist() {
    Table table{"smartqos_whitelist", 7, 328, 41988};
    table.places = {
        number("id", 0),
        text("devmac", 154, 20),
        text("mark", 174, 154),
    };

    table.list = GetSmartQosItemList;
    table.get = GetSmartQosItem;
    table.add = AddSmartQosItem;
    table.modify = ModifySmartQosItem;
    table.remove_row = DelSmartQosItem;
    table.build = GetSmartQosItemListInServer;

    table.list_query = "select * from smartqos_whitelist order by id;";
    table.get_query = "select * from smartqos_whitelist where id='{id}';";
    table.insert = "insert into smartqos_whitelist(devmac,mark) values('{devmac}','{mark}');";
    table.update = "update smartqos_whitelist set devmac='{devmac}',mark='{mark}' where id='{id}';";
    table.removal = "delete from smartqos_whitelist where id='{id}';";
    return {table};
}

}  // namespace golden
