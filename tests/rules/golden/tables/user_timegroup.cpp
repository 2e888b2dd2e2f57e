#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> user_timegroup() {
    Table table{"user_timegroup", 5, 380, 48644};
    table.places = {
        number("id", 0),
        text("name", 4, 152),
        GOLDEN_WEEKDAYS(156, Carried::always),
        text("start_time", 184, 20),
        text("end_time", 204, 20),
        text("mark", 224, 156),
    };

    table.list = GetTimeGroupItemList;
    table.get = GetTimeGroupItem;
    table.add = AddTimeGroupItem;
    table.modify = ModifyTimeGroupItem;
    table.remove = DelTimeGroupItem;
    table.build = GetTimeGroupItemListInServer;

    table.list_query = "select * from user_timegroup order by id;";
    table.get_query = "select * from user_timegroup where id='{id}';";
    table.insert =
        "insert into user_timegroup(name,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,"
        "end_time,mark) values('{name}','{weekday1}','{weekday2}','{weekday3}','{weekday4}','{weekday5}',"
        "'{weekday6}','{weekday7}','{start_time}','{end_time}','{mark}');";
    table.update =
        "update user_timegroup set name='{name}',weekday1='{weekday1}',weekday2='{weekday2}',weekday3='{weekday3}',"
        "weekday4='{weekday4}',weekday5='{weekday5}',weekday6='{weekday6}',weekday7='{weekday7}',"
        "start_time='{start_time}',end_time='{end_time}',mark='{mark}' where id='{id}';";
    table.removal = "delete from user_timegroup where {condition};";
    return {table};
}

}  // namespace golden
