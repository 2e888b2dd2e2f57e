#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> forword_ipport() {
    Table table{"forword_ipport", 12, 508, 65028};
    // The columns name the internal ports first, the record the external ones.
    table.places = {
        number("id", 0),
        text("name", 4, 300),
        text("devip", 308, 20),
        number("protocol", 304),
        number("devinnerfromport", 336),
        number("devinnertoport", 340),
        number("devexternfromport", 328),
        number("devexterntoport", 332),
        number("wanid", 500),
        number("status", 344),
        text("mark", 348, 152),
    };

    table.list = GetPortFwItemList;
    table.get = GetPortFwItem;
    table.add = AddPortFwItem;
    table.modify = ModifyPortFwItem;
    table.remove = DelPortFwItem;
    table.build = GetPortFwItemListInServer;

    table.list_query = "select * from forword_ipport order by Id;";
    table.get_query = "select * from forword_ipport where id='{id}';";
    table.insert =
        "insert into forword_ipport(name,devip,protocol,devinnerfromport,devinnertoport,devexternfromport,"
        "devexterntoport,wanid,status,mark) values('{name}','{devip}','{protocol}','{devinnerfromport}',"
        "'{devinnertoport}','{devexternfromport}','{devexterntoport}','{wanid}','{status}','{mark}');";
    table.update =
        "update forword_ipport set name='{name}',devip='{devip}',protocol='{protocol}',"
        "devinnerfromport='{devinnerfromport}',devinnertoport='{devinnertoport}',"
        "devexternfromport='{devexternfromport}',devexterntoport='{devexterntoport}',wanid='{wanid}',"
        "status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from forword_ipport where {condition};";
    return {table};
}

}  // namespace golden
