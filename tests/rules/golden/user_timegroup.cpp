#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 380;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into user_timegroup values(" + number + ",'group " + number + "',1,0,1," + number +
           ",0,1,0,'08:00','18:30','" + of(120, 'm') + number + "');";
}

std::string record(int n) {
    const std::string number = std::to_string(n);
    return Record(size)
        .number(0, n)
        .text(4, "group " + number)
        .numbers(156, {1, 0, 1, n, 0, 1, 0})
        .text(184, "08:00")
        .text(204, "18:30")
        .text(224, of(120, 'm') + number)
        .bytes();
}

Table table() {
    Table table{"user_timegroup", 5, size, 48644};
    table.list = GetTimeGroupItemList;
    table.get = GetTimeGroupItem;
    table.add = AddTimeGroupItem;
    table.modify = ModifyTimeGroupItem;
    table.remove = DelTimeGroupItem;
    table.build = GetTimeGroupItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from user_timegroup order by id;";
    table.get_query = "select * from user_timegroup where id='7';";
    table.lowest_query = "select * from user_timegroup where id='-2147483648';";
    table.remove_until_condition = "delete from user_timegroup where ";
    return table;
}

#define COLUMNS "name,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,end_time,mark"

std::vector<Sample> samples() {
    return {
        // Every text has odd bytes behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "office hours")
             .numbers(156, {1, 0, 11, 0, 13, 14, 15})
             .text(184, "08:00")
             .text(204, "18:30")
             .text(224, "without lunch")
             .bytes(),
         "insert into user_timegroup(" COLUMNS ") values('office hours','1','0','11','0','13','14','15','08:00',"
         "'18:30','without lunch');",
         "update user_timegroup set name='office hours',weekday1='1',weekday2='0',weekday3='11',weekday4='0',"
         "weekday5='13',weekday6='14',weekday7='15',start_time='08:00',end_time='18:30',mark='without lunch' "
         "where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into user_timegroup(" COLUMNS ") values('','0','0','0','0','0','0','0','','','');",
         "update user_timegroup set name='',weekday1='0',weekday2='0',weekday3='0',weekday4='0',weekday5='0',"
         "weekday6='0',weekday7='0',start_time='',end_time='',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(152, 'n'))
             .number(156, 1)
             .unterminated(184, of(20, 's'))
             .unterminated(204, of(20, 'e'))
             .unterminated(224, of(156, 'm'))
             .bytes(),
         "insert into user_timegroup(" COLUMNS ") values('" + of(152, 'n') + "','1','0','0','0','0','0','0','" +
             of(20, 's') + "','" + of(20, 'e') + "','" + of(156, 'm') + "');",
         "update user_timegroup set name='" + of(152, 'n') +
             "',weekday1='1',weekday2='0',weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',"
             "start_time='" +
             of(20, 's') + "',end_time='" + of(20, 'e') + "',mark='" + of(156, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size).number(0, lowest).numbers(156, {lowest, highest, lowest, highest, lowest, highest, -1}).bytes(),
         "insert into user_timegroup(" COLUMNS ") values('','-2147483648','2147483647','-2147483648','2147483647',"
         "'-2147483648','2147483647','-1','','','');",
         "update user_timegroup set name='',weekday1='-2147483648',weekday2='2147483647',weekday3='-2147483648',"
         "weekday4='2147483647',weekday5='-2147483648',weekday6='2147483647',weekday7='-1',start_time='',"
         "end_time='',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "上班时间").text(184, "'").text(204, "%s%d").text(224, "it's").bytes(),
         "insert into user_timegroup(" COLUMNS ") values('上班时间','0','0','0','0','0','0','0',''','%s%d','it's');",
         "update user_timegroup set name='上班时间',weekday1='0',weekday2='0',weekday3='0',weekday4='0',"
         "weekday5='0',weekday6='0',weekday7='0',start_time=''',end_time='%s%d',mark='it's' where id='8';"},
    };
}

std::vector<Built> built() {
    return {
        {"plain",
         "insert into user_timegroup values(7,'office hours',1,0,11,0,13,14,15,'08:00','18:30','without lunch');",
         Record(size)
             .number(0, 7)
             .text(4, "office hours")
             .numbers(156, {1, 0, 11, 0, 13, 14, 15})
             .text(184, "08:00")
             .text(204, "18:30")
             .text(224, "without lunch")
             .bytes()},
        {"NULL in every column",
         "insert into user_timegroup values(8,null,null,null,null,null,null,null,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into user_timegroup values(2147483647,'" + of(151, 'n') + "',-2147483648,2147483647,0,0,0,0,-1,'" +
             of(19, 's') + "','" + of(19, 'e') + "','" + of(155, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(151, 'n'))
             .numbers(156, {lowest, highest, 0, 0, 0, 0, -1})
             .text(184, of(19, 's'))
             .text(204, of(19, 'e'))
             .text(224, of(155, 'm'))
             .bytes()},
        {"beyond its width is cut",
         "insert into user_timegroup values(-8,'" + of(152, 'n') + "',0,0,0,0,0,0,0,'" + of(20, 's') + "','" +
             of(500, 'e') + "','" + of(156, 'm') + "');",
         Record(size)
             .number(0, -8)
             .text(4, of(151, 'n'))
             .text(184, of(19, 's'))
             .text(204, of(19, 'e'))
             .text(224, of(155, 'm'))
             .bytes()},
        {"numbers stored as text",
         "insert into user_timegroup values(8,'',' 1','2nd','three','-4','5.9','1e3',1.9,'','','');",
         Record(size).number(0, 8).numbers(156, {1, 2, 0, -4, 5, 1000, 1}).bytes()},
        {"Chinese and apostrophes", "insert into user_timegroup values(8,'上班时间',0,0,0,0,0,0,0,'','','it''s');",
         Record(size).number(0, 8).text(4, "上班时间").text(224, "it's").bytes()},
    };
}

}  // namespace

Golden user_timegroup() {
    return {table(), samples(), {}, built()};
}

}  // namespace golden
