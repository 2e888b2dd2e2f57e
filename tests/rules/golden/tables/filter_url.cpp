#include "routerdb.h"
#include "rules/golden/golden.h"

namespace golden {

std::vector<Table> filter_url() {
    Table table{"filter_url", 2, 1952, 249860};
    table.places = {
        number("id", 0),
        text("name", 4, 150),
        text("url", 154, 1030),
        number("timecontrol", 1564),
        number("timegroup_id", 1568, Carried::with_time_group),
        GOLDEN_WEEKDAYS(1724, Carried::with_own_time),
        text("start_time", 1752, 20, Carried::with_own_time),
        text("end_time", 1772, 20, Carried::with_own_time),
        number("status", 1792),
        text("mark", 1800, 152),
    };
    // The group's last four bytes are those of the flag.
    table.time_group = {1572, 1184, 376, 1560};

    table.list = GetUrlFilterItemList;
    table.get = GetUrlFilterItem;
    table.add = AddUrlFilterItem;
    table.modify = ModifyUrlFilterItem;
    table.remove = DelUrlFilterItem;
    table.remove_of_kind = DelUrlFilterItemById;
    table.build = GetUrlFilterItemListInServer;

    table.list_query = "select * from filter_url order by Id;";
    table.get_query = "select * from filter_url where id='{id}';";
    table.insert =
        "insert into filter_url(name,url,timecontrol,timegroup_id,weekday1,weekday2,weekday3,weekday4,weekday5,"
        "weekday6,weekday7,start_time,end_time,status,mark) values('{name}','{url}','{timecontrol}','{timegroup_id}',"
        "'{weekday1}','{weekday2}','{weekday3}','{weekday4}','{weekday5}','{weekday6}','{weekday7}','{start_time}',"
        "'{end_time}','{status}','{mark}');";
    table.update =
        "update filter_url set name='{name}',url='{url}',timecontrol='{timecontrol}',timegroup_id='{timegroup_id}',"
        "weekday1='{weekday1}',weekday2='{weekday2}',weekday3='{weekday3}',weekday4='{weekday4}',"
        "weekday5='{weekday5}',weekday6='{weekday6}',weekday7='{weekday7}',start_time='{start_time}',"
        "end_time='{end_time}',status='{status}',mark='{mark}' where id='{id}';";
    table.removal = "delete from filter_url where {condition};";
    return {table};
}

}  // namespace golden
