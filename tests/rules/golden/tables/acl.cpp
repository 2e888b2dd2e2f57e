#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

namespace {

/// What does not differ between the three, nor in statements.
Table alike(const char *name, std::uint32_t table_id, int number_of_list, const Build &build) {
    Table table{name, table_id, 480, 61444};
    table.places = {
        number("id", 0), text("name", 4, 300), text("mac", 304, 20), number("status", 476), text("mark", 324, 152),
    };

    table.list = [number_of_list](Pointer list) { GetAclItemList(list, number_of_list); };
    table.get = [number_of_list](int id, Pointer item) { GetAclItem(id, item, number_of_list); };
    table.add = [number_of_list](Pointer item) { AddAclItem(item, number_of_list); };
    table.modify = [number_of_list](Pointer item) { ModifyAclItem(item, number_of_list); };
    table.remove = [number_of_list](const char *condition) { DelAclItem(condition, number_of_list); };
    table.remove_all = [number_of_list] { DelAclItemAll(number_of_list); };
    table.build = build;

    table.list_query = "select * from wifi?acl order by id;";
    table.get_query = "select * from wifi?acl where id='{id}';";
    table.insert = "insert into wifi?acl(name,mac,status,mark) values('{name}','{mac}','{status}','{mark}');";
    table.update = "update wifi?acl set name='{name}',mac='{mac}',status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from wifi?acl where {condition};";
    table.removal_of_all = "delete from wifi?acl;";
    for (std::string *statement :
         {&table.list_query, &table.get_query, &table.insert, &table.update, &table.removal, &table.removal_of_all}) {
        statement->replace(statement->find('?'), 1, std::to_string(number_of_list));
    }
    return table;
}

}  // namespace

std::vector<Table> acl() {
    return {
        alike("wifi0acl", 15, 0, Get2GAclItemListInServer),
        alike("wifi1acl", 16, 1, Get5GAclItemListInServer),
        alike("wifi2acl", 17, 2, Get2GAclItemListInServer),
    };
}

}  // namespace golden
