#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> domain_ip() {
    Table table{"domain_ip", 18, 676, 86532};
    table.places = {
        number("id", 0),     text("name", 4, 300),  text("domain", 304, 150),
        text("ip", 454, 64), number("status", 668), text("mark", 518, 150),
    };

    table.list = GetDomainIpItemList;
    table.get = GetDomainIpItem;
    table.add = AddDomainIpItem;
    table.modify = ModifyDomainIpItem;
    table.remove = DelDomainIpItem;
    table.build = GetDomainIpItemListInServer;

    table.list_query = "select * from domain_ip order by id;";
    table.get_query = "select * from domain_ip where id='{id}';";
    table.insert =
        "insert into domain_ip(name,domain,ip,status,mark) values('{name}','{domain}','{ip}','{status}','{mark}');";
    table.update =
        "update domain_ip set name='{name}',domain='{domain}',ip='{ip}',status='{status}',mark='{mark}' "
        "where id='{id}';";
    table.removal = "delete from domain_ip where {condition};";
    table.remove_id = 4;
    return {table};
}

}  // namespace golden
