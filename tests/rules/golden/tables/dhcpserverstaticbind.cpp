#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> dhcpserverstaticbind() {
    Table table{"dhcpserverstaticbind", 1, 352, 45060};
    table.places = {
        number("id", 0), number("devtype", 156), text("mac", 160, 20), text("ip", 180, 20), text("mark", 200, 152),
    };

    table.list = GetDhcpStaticItemList;
    table.get = GetDhcpStaticItem;
    table.add = AddDhcpStaticItem;
    table.modify = ModifyDhcpStaticItem;
    table.remove = DelDhcpStaticItem;
    table.build = GetDhcpStaticItemListInServer;
    table.messages = detailed_messages;

    table.list_query = "select * from dhcpserverstaticbind order by id;";
    table.get_query = "select * from dhcpserverstaticbind where id='{id}';";
    table.asked_before_insert = {
        "select count(*) from dhcpserverstaticbind where ip='{ip}';",
        "select count(*) from dhcpserverstaticbind where mac='{mac}';",
    };
    table.insert = "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('{devtype}','{mac}','{ip}','{mark}');";
    table.asked_before_update = {
        "select count(*) from dhcpserverstaticbind where ip='{ip}';",
        "select id from dhcpserverstaticbind where ip='{ip}';",
        "select count(*) from dhcpserverstaticbind where mac='{mac}';",
        "select id from dhcpserverstaticbind where mac='{mac}';",
    };
    table.update =
        "update dhcpserverstaticbind set devtype='{devtype}',mac='{mac}',ip='{ip}',mark='{mark}' where id='{id}';";
    table.removal = "delete from dhcpserverstaticbind where {condition};";
    return {table};
}

}  // namespace golden
