#include "routerdb.h"
#include "rules/golden/golden.h"
#include "rules/golden/references.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 1952;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into filter_url values(" + number + ",'rule " + number + "','" + of(900, 'u') + number +
           ".example.com',1,0,1,0," + number + ",0,1,0,1,'08:00','18:30'," + number + ",'mark " + number + "');";
}

std::string record(int n) {
    const std::string number = std::to_string(n);
    return Record(size)
        .number(0, n)
        .text(4, "rule " + number)
        .text(154, of(900, 'u') + number + ".example.com")
        .numbers(1560, {1, 1})
        .numbers(1724, {1, 0, n, 0, 1, 0, 1})
        .text(1752, "08:00")
        .text(1772, "18:30")
        .number(1792, n)
        .text(1800, "mark " + number)
        .bytes();
}

Table table() {
    Table table{"filter_url", 2, size, 249860};
    table.list = GetUrlFilterItemList;
    table.get = GetUrlFilterItem;
    table.add = AddUrlFilterItem;
    table.modify = ModifyUrlFilterItem;
    table.remove = DelUrlFilterItem;
    table.build = GetUrlFilterItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from filter_url order by Id;";
    table.get_query = "select * from filter_url where id='7';";
    table.lowest_query = "select * from filter_url where id='-2147483648';";
    table.remove_until_condition = "delete from filter_url where ";
    return table;
}

#define COLUMNS                                                                                                    \
    "name,url,timecontrol,timegroup_id,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time," \
    "end_time,status,mark"

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "office")
             .text(154, "www.example.com/a?b=c&d")
             .numbers(1564, {1, 5})
             .numbers(1724, {1, 0, 11, 0, 13, 14, 15})
             .text(1752, "08:00")
             .text(1772, "18:30")
             .number(1792, 1)
             .text(1800, "first floor")
             .bytes(),
         "insert into filter_url(" COLUMNS ") values('office','www.example.com/a?b=c&d','1','5','1','0','11','0','13',"
         "'14','15','08:00','18:30','1','first floor');",
         "update filter_url set name='office',url='www.example.com/a?b=c&d',timecontrol='1',timegroup_id='5',"
         "weekday1='1',weekday2='0',weekday3='11',weekday4='0',weekday5='13',weekday6='14',weekday7='15',"
         "start_time='08:00',end_time='18:30',status='1',mark='first floor' where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into filter_url(" COLUMNS ") values('','','0','0','0','0','0','0','0','0','0','','','0','');",
         "update filter_url set name='',url='',timecontrol='0',timegroup_id='0',weekday1='0',weekday2='0',"
         "weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',status='0',"
         "mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(150, 'n'))
             .unterminated(154, of(1030, 'u'))
             .number(1184, 1)
             .number(1724, 1)
             .unterminated(1752, of(20, 's'))
             .unterminated(1772, of(20, 'e'))
             .number(1792, 1)
             .unterminated(1800, of(152, 'm'))
             .bytes(),
         "insert into filter_url(" COLUMNS ") values('" + of(150, 'n') + "','" + of(1030, 'u') +
             "','0','0','1','0','0','0','0','0','0','" + of(20, 's') + "','" + of(20, 'e') + "','1','" + of(152, 'm') +
             "');",
         "update filter_url set name='" + of(150, 'n') + "',url='" + of(1030, 'u') +
             "',timecontrol='0',timegroup_id='0',weekday1='1',weekday2='0',weekday3='0',weekday4='0',weekday5='0',"
             "weekday6='0',weekday7='0',start_time='" +
             of(20, 's') + "',end_time='" + of(20, 'e') + "',status='1',mark='" + of(152, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size)
             .number(0, lowest)
             .numbers(1564, {highest, lowest})
             .numbers(1724, {lowest, highest, lowest, highest, lowest, highest, -1})
             .number(1792, lowest)
             .bytes(),
         "insert into filter_url(" COLUMNS ") values('','','2147483647','-2147483648','-2147483648','2147483647',"
         "'-2147483648','2147483647','-2147483648','2147483647','-1','','','-2147483648','');",
         "update filter_url set name='',url='',timecontrol='2147483647',timegroup_id='-2147483648',"
         "weekday1='-2147483648',weekday2='2147483647',weekday3='-2147483648',weekday4='2147483647',"
         "weekday5='-2147483648',weekday6='2147483647',weekday7='-1',start_time='',end_time='',"
         "status='-2147483648',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "办公室").text(154, "a'b%s%d.example.com").text(1800, "it's").bytes(),
         "insert into filter_url(" COLUMNS ") values('办公室','a'b%s%d.example.com','0','0','0','0','0','0','0','0',"
         "'0','','','0','it's');",
         "update filter_url set name='办公室',url='a'b%s%d.example.com',timecontrol='0',timegroup_id='0',"
         "weekday1='0',weekday2='0',weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',"
         "end_time='',status='0',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove_by_id = [](int kind) {
        return Operation{"filter_url delete by id, kind " + std::to_string(kind),
                         [kind] { DelUrlFilterItemById("id='1'", kind); },
                         {execute(2, "delete from filter_url where id='1';")}};
    };
    return {remove_by_id(1), remove_by_id(2), remove_by_id(0)};
}

/// A rule that references a time group; its own weekdays and times are there and must not be read.
std::string referring_to(const char *group) {
    return std::string("insert into filter_url values(8,'games','games.example.com',2,") + group +
           ",9,9,9,9,9,9,9,'xx','yy',1,'no');";
}

Record referring_record(std::int32_t group) {
    return Record(size)
        .number(0, 8)
        .text(4, "games")
        .text(154, "games.example.com")
        .numbers(1564, {2, group})
        .number(1792, 1)
        .text(1800, "no");
}

Record with_group(std::int32_t group, const std::string &name, const std::string &mark) {
    return referring_record(group)
        .number(1184, group)
        .text(1188, name)
        .numbers(1340, {1, 0, 1, 1, 0, 0, 1})
        .text(1368, "18:00")
        .text(1388, "23:59")
        .unterminated(1408, mark)
        .number(1560, 1)
        .text(1572, name)
        .numbers(1724, {1, 0, 1, 1, 0, 0, 1})
        .text(1752, "18:00")
        .text(1772, "23:59");
}

std::string without_time(const char *control) {
    return std::string("insert into filter_url values(8,'games','games.example.com',") + control +
           ",5,9,9,9,9,9,9,9,'xx','yy',1,'no');";
}

std::vector<Built> built() {
    const std::string group = time_group("3", "evenings", "after work");
    return {
        {"own time, whatever group the column names",
         group + "insert into filter_url values(7,'office','www.example.com',1,3,1,0,11,0,13,14,15,'08:00','18:30',0,"
                 "'first floor');",
         Record(size)
             .number(0, 7)
             .text(4, "office")
             .text(154, "www.example.com")
             .numbers(1560, {1, 1, 0})
             .numbers(1724, {1, 0, 11, 0, 13, 14, 15})
             .text(1752, "08:00")
             .text(1772, "18:30")
             .text(1800, "first floor")
             .bytes()},
        {"time group", group + referring_to("3"), with_group(3, "evenings", "after work").bytes()},
        {"time group 0", time_group("0", "nought", "") + referring_to("0"), with_group(0, "nought", "").bytes()},
        {"unknown time group", group + referring_to("77"), referring_record(77).number(1560, 1).bytes()},
        {"negative time group", time_group("-1", "below", "") + referring_to("-1"), referring_record(-1).bytes()},
        {"no time group", referring_to("null"), referring_record(0).number(1560, 1).bytes()},
        {"timecontrol 0", without_time("0"), referring_record(0).number(1564, 0).bytes()},
        {"timecontrol 3", without_time("3"), referring_record(0).number(1564, 3).bytes()},
        {"timecontrol that is no number", without_time("'own'"), referring_record(0).number(1564, 0).bytes()},
        {"NULL in every column",
         "insert into filter_url values(8,null,null,null,null,null,null,null,null,null,null,null,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"NULL in every column of the own time",
         "insert into filter_url values(8,null,null,1,null,null,null,null,null,null,null,null,null,null,null,null);",
         Record(size).number(0, 8).numbers(1560, {1, 1}).bytes()},
        {"full width",
         "insert into filter_url values(2147483647,'" + of(149, 'n') + "','" + of(1029, 'u') +
             "',1,0,-2147483648,2147483647,0,0,0,0,-1,'" + of(19, 's') + "','" + of(19, 'e') + "',2147483647,'" +
             of(151, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(149, 'n'))
             .text(154, of(1029, 'u'))
             .numbers(1560, {1, 1})
             .numbers(1724, {lowest, highest, 0, 0, 0, 0, -1})
             .text(1752, of(19, 's'))
             .text(1772, of(19, 'e'))
             .number(1792, highest)
             .text(1800, of(151, 'm'))
             .bytes()},
        {"beyond its width is cut",
         "insert into filter_url values(8,'" + of(150, 'n') + "','" + of(3000, 'u') + "',1,0,0,0,0,0,0,0,0,'" +
             of(20, 's') + "','" + of(500, 'e') + "',1,'" + of(152, 'm') + "');",
         Record(size)
             .number(0, 8)
             .text(4, of(149, 'n'))
             .text(154, of(1029, 'u'))
             .numbers(1560, {1, 1})
             .text(1752, of(19, 's'))
             .text(1772, of(19, 'e'))
             .number(1792, 1)
             .text(1800, of(151, 'm'))
             .bytes()},
        {"time group whose mark ends where the flag lies",
         time_group("3", "evenings", of(152, 'm')) + referring_to("3"),
         with_group(3, "evenings", of(152, 'm')).bytes()},
        {"time group whose mark reaches over the flag", time_group("3", "evenings", of(155, 'm')) + referring_to("3"),
         with_group(3, "evenings", of(152, 'm')).bytes()},
        {"time group beyond its widths", time_group("3", of(152, 'g'), of(500, 'm')) + referring_to("3"),
         with_group(3, of(151, 'g'), of(152, 'm')).bytes()},
        {"Chinese and apostrophes",
         "insert into filter_url values(8,'办公室','a''b.example.com',0,0,0,0,0,0,0,0,0,'','',0,'it''s');",
         Record(size).number(0, 8).text(4, "办公室").text(154, "a'b.example.com").text(1800, "it's").bytes()},
    };
}

}  // namespace

Golden filter_url() {
    return {table(), samples(), others(), built()};
}

}  // namespace golden
