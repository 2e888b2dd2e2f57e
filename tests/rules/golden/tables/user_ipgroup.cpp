#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> user_ipgroup() {
    Table table{"user_ipgroup", 6, 368, 47108};
    table.places = {
        number("id", 0), text("name", 4, 150), text("startip", 154, 30), text("endip", 184, 30), text("mark", 214, 154),
    };

    table.list = GetIpGroupItemList;
    table.get = GetIpGroupItem;
    table.add = AddIpGroupItem;
    table.modify = ModifyIpGroupItem;
    table.remove = DelIpGroupItem;
    table.build = GetIpGroupItemListInServer;

    table.list_query = "select * from user_ipgroup order by id;";
    table.get_query = "select * from user_ipgroup where id='{id}';";
    table.insert = "insert into user_ipgroup(name,startip,endip,mark) values('{name}','{startip}','{endip}','{mark}');";
    table.update =
        "update user_ipgroup set name='{name}',startip='{startip}',endip='{endip}',mark='{mark}' where id='{id}';";
    table.removal = "delete from user_ipgroup where {condition};";
    return {table};
}

}  // namespace golden
