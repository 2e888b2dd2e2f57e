#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> filter_ipport() {
    Table table{"filter_ipport", 4, 1652, 211460};
    table.places = {
        number("id", 0),
        text("name", 4, 300),
        number("ipcontrol", 304),
        number("ipgroup_id", 308, Carried::with_ip_group),
        text("devstartip", 1440, 20, Carried::without_ip_group),
        text("devendip", 1460, 20, Carried::without_ip_group),
        number("devfromport", 1480),
        number("devtoport", 1484),
        number("protocol", 1488),
        number("timecontrol", 464),
        number("timegroup_id", 468, Carried::with_time_group),
        GOLDEN_WEEKDAYS(1372, Carried::with_own_time),
        text("start_time", 1400, 20, Carried::with_own_time),
        text("end_time", 1420, 20, Carried::with_own_time),
        number("status", 1644),
        text("mark", 1492, 152),
    };
    table.time_group = {472, 624};
    table.ip_group = {312, 1004};

    table.list = GetIpFilterItemList;
    table.get = GetIpFilterItem;
    table.add = AddIpFilterItem;
    table.modify = ModifyIpFilterItem;
    table.remove = DelIpFilterItem;
    table.remove_of_kind = DelIpFilterItemById;
    table.build = GetIpFilterItemListInServer;

    table.list_query = "select * from filter_ipport order by id;";
    table.get_query = "select * from filter_ipport where id='{id}';";
    // Not the order of the table, which has the addresses and ports before the times.
    table.insert =
        "insert into filter_ipport(name,ipcontrol,ipgroup_id,timecontrol,timegroup_id,devstartip,devendip,"
        "devfromport,devtoport,protocol,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,"
        "end_time,status,mark) values('{name}','{ipcontrol}','{ipgroup_id}','{timecontrol}','{timegroup_id}',"
        "'{devstartip}','{devendip}','{devfromport}','{devtoport}','{protocol}','{weekday1}','{weekday2}',"
        "'{weekday3}','{weekday4}','{weekday5}','{weekday6}','{weekday7}','{start_time}','{end_time}','{status}',"
        "'{mark}');";
    table.update =
        "update filter_ipport set name='{name}',ipcontrol='{ipcontrol}',ipgroup_id='{ipgroup_id}',"
        "timecontrol='{timecontrol}',timegroup_id='{timegroup_id}',devstartip='{devstartip}',devendip='{devendip}',"
        "devfromport='{devfromport}',devtoport='{devtoport}',protocol='{protocol}',weekday1='{weekday1}',"
        "weekday2='{weekday2}',weekday3='{weekday3}',weekday4='{weekday4}',weekday5='{weekday5}',"
        "weekday6='{weekday6}',weekday7='{weekday7}',start_time='{start_time}',end_time='{end_time}',"
        "status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from filter_ipport where {condition};";
    return {table};
}

}  // namespace golden
