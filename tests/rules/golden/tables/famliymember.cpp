#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> famliymember() {
    Table table{"famliymember", 11, 336, 43012};
    table.places = {
        number("id", 0), text("name", 4, 150), text("mac", 154, 20), number("devtype", 176), text("mark", 180, 156),
    };

    table.list = GetFamliyMemberItemList;
    table.get = GetFamliyMemberItem;
    table.add = AddFamliyMemberItem;
    table.modify = ModifyFamliyMemberItem;
    table.remove = DelFamliyMemberItem;
    table.build = GetFamliyMemberItemListInServer;

    table.list_query = "select * from famliymember order by id;";
    table.get_query = "select * from famliymember where id='{id}';";
    table.insert = "insert into famliymember(name,mac,devtype,mark) values('{name}','{mac}','{devtype}','{mark}');";
    table.update =
        "update famliymember set name='{name}',mac='{mac}',devtype='{devtype}',mark='{mark}' where id='{id}';";
    table.removal = "delete from famliymember where {condition};";
    return {table};
}

}  // namespace golden
