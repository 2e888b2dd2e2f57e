#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> filter_mac() {
    Table table{"filter_mac", 3, 1088, 139268};
    table.places = {
        number("id", 0),
        text("name", 4, 150),
        text("devmac", 304, 20),
        number("timecontrol", 324),
        number("timegroup_id", 328, Carried::with_time_group),
        GOLDEN_WEEKDAYS(484, Carried::with_own_time),
        text("start_time", 512, 20, Carried::with_own_time),
        text("end_time", 532, 20, Carried::with_own_time),
        number("status", 552),
        text("mark", 556, 152),
    };
    table.time_group = {332, 708};
    table.host_name = 154;

    table.list = GetMacFilterItemList;
    table.get = GetMacFilterItem;
    table.add = AddMacFilterItem;
    table.modify = ModifyMacFilterItem;
    table.remove = DelMacFilterItem;
    table.remove_of_kind = DelMacFilterItemById;
    table.remove_all = DelMacFilterItemAll;
    table.build = GetMacFilterItemListInServer;
    table.messages = detailed_messages;

    table.list_query = "select * from filter_mac order by id;";
    table.get_query = "select * from filter_mac where id='{id}';";
    table.insert =
        "insert into filter_mac(name,devmac,timecontrol,timegroup_id,weekday1,weekday2,weekday3,weekday4,weekday5,"
        "weekday6,weekday7,start_time,end_time,status,mark) values('{name}','{devmac}','{timecontrol}',"
        "'{timegroup_id}','{weekday1}','{weekday2}','{weekday3}','{weekday4}','{weekday5}','{weekday6}','{weekday7}',"
        "'{start_time}','{end_time}','{status}','{mark}');";
    table.update =
        "update filter_mac set name='{name}',devmac='{devmac}',timecontrol='{timecontrol}',"
        "timegroup_id='{timegroup_id}',weekday1='{weekday1}',weekday2='{weekday2}',weekday3='{weekday3}',"
        "weekday4='{weekday4}',weekday5='{weekday5}',weekday6='{weekday6}',weekday7='{weekday7}',"
        "start_time='{start_time}',end_time='{end_time}',status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from filter_mac where {condition};";
    table.removal_of_all = "delete from filter_mac;";
    return {table};
}

}  // namespace golden
