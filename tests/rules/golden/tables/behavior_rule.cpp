#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> behavior_rule() {
    Table table{"behavior_rule", 14, 7680, 983044};
    table.places = {
        number("id", 0),
        number("control_type", 4),
        number("ipcontrol", 160),
        number("ipgroup_id", 164, Carried::with_ip_group),
        number("timecontrol", 688),
        number("timegroup_id", 692, Carried::with_time_group),
        text("devmac", 1228, 20),
        text("devstartip", 1248, 30, Carried::without_ip_group),
        text("devendip", 1278, 30, Carried::without_ip_group),
        unread("behavior_type"),
        text("behavior_info", 1308, 2048),
        GOLDEN_WEEKDAYS(7452, Carried::with_own_time),
        text("start_time", 7480, 20, Carried::with_own_time),
        text("end_time", 7500, 20, Carried::with_own_time),
        number("status", 7672),
        text("mark", 7520, 152),
    };
    table.time_group = {696, 848};
    table.ip_group = {536, 168};
    table.host_name = 8;
    table.names = {3356, 5404};

    table.list = GetBehaviorItemList;
    table.get = GetBehaviorItem;
    table.add = AddBehaviortem;
    table.modify = ModifyBehaviorItem;
    table.remove = DelBehaviorItem;
    table.remove_of_kind = DelBehaviorItemById;
    table.build = GetBehaviorItemListInServer;

    table.list_query = "select * from behavior_rule order by id;";
    table.get_query = "select * from behavior_rule where id='{id}';";
    table.insert =
        "insert into behavior_rule(control_type,ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,devstartip,"
        "devendip,behavior_type,behavior_info,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,"
        "start_time,end_time,status,mark) values('{control_type}','{ipcontrol}','{ipgroup_id}','{timecontrol}',"
        "'{timegroup_id}','{devmac}','{devstartip}','{devendip}','0','{behavior_info}','{weekday1}','{weekday2}',"
        "'{weekday3}','{weekday4}','{weekday5}','{weekday6}','{weekday7}','{start_time}','{end_time}','{status}',"
        "'{mark}');";
    table.update =
        "update behavior_rule set control_type='{control_type}',ipcontrol='{ipcontrol}',ipgroup_id='{ipgroup_id}',"
        "timecontrol='{timecontrol}',timegroup_id='{timegroup_id}',devmac='{devmac}',devstartip='{devstartip}',"
        "devendip='{devendip}',behavior_type='0',behavior_info='{behavior_info}',weekday1='{weekday1}',"
        "weekday2='{weekday2}',weekday3='{weekday3}',weekday4='{weekday4}',weekday5='{weekday5}',"
        "weekday6='{weekday6}',weekday7='{weekday7}',start_time='{start_time}',end_time='{end_time}',"
        "status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from behavior_rule where {condition};";
    return {table};
}

}  // namespace golden
