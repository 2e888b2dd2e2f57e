#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> user_urlinfo() {
    Table table{"user_urlinfo", 8, 820, 104964};
    table.places = {
        number("id", 0),
        text("name", 4, 150),
        text("url", 154, 512),
        text("mark", 666, 154),
    };

    table.list = GetUserUrlItemList;
    table.get = GetUserUrlItem;
    table.add = AddUserUrlItem;
    table.modify = ModifyUserUrlItem;
    table.remove_row = DelUserUrlItem;
    table.build = GetUserUrlItemListInServer;

    table.list_query = "select * from user_urlinfo order by id;";
    table.get_query = "select * from user_urlinfo where id='{id}';";
    table.insert = "insert into user_urlinfo(name,url,mark) values('{name}','{url}','{mark}');";
    table.update = "update user_urlinfo set name='{name}',url='{url}',mark='{mark}' where id='{id}';";
    table.removal = "delete from user_urlinfo where id='{id}';";
    return {table};
}

}  // namespace golden
