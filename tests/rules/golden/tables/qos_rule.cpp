#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> qos_rule() {
    Table table{"qos_rule", 13, 1676, 214532};
    table.places = {
        number("id", 0),
        text("name", 4, 300),
        number("control_type", 304),
        text("devmac", 1376, 20),
        number("ipcontrol", 308),
        number("ipgroup_id", 312, Carried::with_ip_group),
        text("devstartip", 1396, 20),
        text("devendip", 1416, 20),
        number("timecontrol", 836),
        number("timegroup_id", 840, Carried::with_time_group),
        GOLDEN_WEEKDAYS(1448, Carried::with_own_time),
        text("start_time", 1476, 20, Carried::with_own_time),
        text("end_time", 1496, 20, Carried::with_own_time),
        number("bw_up", 1436),
        number("bw_down", 1440),
        number("bw_shared_mode", 1444),
        number("status", 1516),
        text("mark", 1524, 152),
    };
    table.time_group = {844, 996};
    table.ip_group = {316, 468};

    table.list = GetQosItemList;
    table.get = GetQosItem;
    table.add = AddQosItem;
    table.modify = ModifyQosItem;
    table.remove = DelQosItem;
    table.remove_of_kind = DelQosItemById;
    table.build = GetQosItemListInServer;

    table.list_query = "select * from qos_rule order by id;";
    table.get_query = "select * from qos_rule where id='{id}';";
    table.insert =
        "insert into qos_rule(name,control_type,devmac,ipcontrol,ipgroup_id,devstartip,devendip,timecontrol,"
        "timegroup_id,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,end_time,bw_up,"
        "bw_down,bw_shared_mode,status,mark) values('{name}','{control_type}','{devmac}','{ipcontrol}',"
        "'{ipgroup_id}','{devstartip}','{devendip}','{timecontrol}','{timegroup_id}','{weekday1}','{weekday2}',"
        "'{weekday3}','{weekday4}','{weekday5}','{weekday6}','{weekday7}','{start_time}','{end_time}','{bw_up}',"
        "'{bw_down}','{bw_shared_mode}','{status}','{mark}');";
    table.update =
        "update qos_rule set name='{name}',control_type='{control_type}',devmac='{devmac}',ipcontrol='{ipcontrol}',"
        "ipgroup_id='{ipgroup_id}',devstartip='{devstartip}',devendip='{devendip}',timecontrol='{timecontrol}',"
        "timegroup_id='{timegroup_id}',weekday1='{weekday1}',weekday2='{weekday2}',weekday3='{weekday3}',"
        "weekday4='{weekday4}',weekday5='{weekday5}',weekday6='{weekday6}',weekday7='{weekday7}',"
        "start_time='{start_time}',end_time='{end_time}',bw_up='{bw_up}',bw_down='{bw_down}',"
        "bw_shared_mode='{bw_shared_mode}',status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from qos_rule where {condition};";
    return {table};
}

}  // namespace golden
