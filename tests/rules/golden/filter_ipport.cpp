#include "routerdb.h"
#include "rules/golden/golden.h"
#include "rules/golden/references.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 1652;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into filter_ipport values(" + number + ",'" + numbered(299, 'n', n) + "',1," + number + ",'" +
           numbered(19, 'f', n) + "','" + numbered(19, 't', n) + "'," + number + ",65535,6,1," + number + ",1,0,1," +
           number + ",0,1,0,'" + numbered(19, 's', n) + "','" + numbered(19, 'e', n) + "',1,'端口" +
           numbered(145, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, numbered(299, 'n', n))
        .number(304, 1)
        .number(464, 1)
        .numbers(1372, {1, 0, 1, n, 0, 1, 0})
        .text(1400, numbered(19, 's', n))
        .text(1420, numbered(19, 'e', n))
        .text(1440, numbered(19, 'f', n))
        .text(1460, numbered(19, 't', n))
        .numbers(1480, {n, 65535, 6})
        .text(1492, "端口" + numbered(145, 'm', n))
        .number(1644, 1)
        .bytes();
}

Table table() {
    Table table{"filter_ipport", 4, size, 211460};
    table.list = GetIpFilterItemList;
    table.get = GetIpFilterItem;
    table.add = AddIpFilterItem;
    table.modify = ModifyIpFilterItem;
    table.remove = DelIpFilterItem;
    table.build = GetIpFilterItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from filter_ipport order by id;";
    table.get_query = "select * from filter_ipport where id='7';";
    table.lowest_query = "select * from filter_ipport where id='-2147483648';";
    table.remove_until_condition = "delete from filter_ipport where ";
    return table;
}

// Not the order of the table, which has the addresses and ports before the times.
#define COLUMNS                                                                                              \
    "name,ipcontrol,ipgroup_id,timecontrol,timegroup_id,devstartip,devendip,devfromport,devtoport,protocol," \
    "weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,end_time,status,mark"

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "web")
             .numbers(304, {1, 3})
             .numbers(464, {2, 5})
             .numbers(1372, {1, 0, 11, 0, 13, 14, 15})
             .text(1400, "08:00")
             .text(1420, "18:30")
             .text(1440, "192.168.1.10")
             .text(1460, "192.168.1.19")
             .numbers(1480, {80, 443, 6})
             .text(1492, "first floor")
             .number(1644, 4)
             .bytes(),
         "insert into filter_ipport(" COLUMNS ") values('web','1','3','2','5','192.168.1.10','192.168.1.19','80',"
         "'443','6','1','0','11','0','13','14','15','08:00','18:30','4','first floor');",
         "update filter_ipport set name='web',ipcontrol='1',ipgroup_id='3',timecontrol='2',timegroup_id='5',"
         "devstartip='192.168.1.10',devendip='192.168.1.19',devfromport='80',devtoport='443',protocol='6',"
         "weekday1='1',weekday2='0',weekday3='11',weekday4='0',weekday5='13',weekday6='14',weekday7='15',"
         "start_time='08:00',end_time='18:30',status='4',mark='first floor' where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into filter_ipport(" COLUMNS ") values('','0','0','0','0','','','0','0','0','0','0','0','0','0','0',"
         "'0','','','0','');",
         "update filter_ipport set name='',ipcontrol='0',ipgroup_id='0',timecontrol='0',timegroup_id='0',"
         "devstartip='',devendip='',devfromport='0',devtoport='0',protocol='0',weekday1='0',weekday2='0',"
         "weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',status='0',"
         "mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(300, 'n'))
             .number(304, 1)
             .unterminated(1400, of(20, 's'))
             .unterminated(1420, of(20, 'e'))
             .unterminated(1440, of(20, 'f'))
             .unterminated(1460, of(20, 't'))
             .number(1480, 1)
             .unterminated(1492, of(152, 'm'))
             .number(1644, 1)
             .bytes(),
         "insert into filter_ipport(" COLUMNS ") values('" + of(300, 'n') + "','1','0','0','0','" + of(20, 'f') +
             "','" + of(20, 't') + "','1','0','0','0','0','0','0','0','0','0','" + of(20, 's') + "','" + of(20, 'e') +
             "','1','" + of(152, 'm') + "');",
         "update filter_ipport set name='" + of(300, 'n') +
             "',ipcontrol='1',ipgroup_id='0',timecontrol='0',timegroup_id='0',devstartip='" + of(20, 'f') +
             "',devendip='" + of(20, 't') +
             "',devfromport='1',devtoport='0',protocol='0',weekday1='0',weekday2='0',weekday3='0',weekday4='0',"
             "weekday5='0',weekday6='0',weekday7='0',start_time='" +
             of(20, 's') + "',end_time='" + of(20, 'e') + "',status='1',mark='" + of(152, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size)
             .number(0, lowest)
             .numbers(304, {highest, lowest})
             .numbers(464, {lowest, highest})
             .numbers(1372, {lowest, highest, lowest, highest, lowest, highest, -1})
             .numbers(1480, {highest, lowest, -2})
             .number(1644, lowest)
             .bytes(),
         "insert into filter_ipport(" COLUMNS ") values('','2147483647','-2147483648','-2147483648','2147483647','',"
         "'','2147483647','-2147483648','-2','-2147483648','2147483647','-2147483648','2147483647','-2147483648',"
         "'2147483647','-1','','','-2147483648','');",
         "update filter_ipport set name='',ipcontrol='2147483647',ipgroup_id='-2147483648',"
         "timecontrol='-2147483648',timegroup_id='2147483647',devstartip='',devendip='',devfromport='2147483647',"
         "devtoport='-2147483648',protocol='-2',weekday1='-2147483648',weekday2='2147483647',"
         "weekday3='-2147483648',weekday4='2147483647',weekday5='-2147483648',weekday6='2147483647',weekday7='-1',"
         "start_time='',end_time='',status='-2147483648',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "网页").text(1440, "a'b").text(1460, "%s%d").text(1492, "it's").bytes(),
         "insert into filter_ipport(" COLUMNS ") values('网页','0','0','0','0','a'b','%s%d','0','0','0','0','0','0',"
         "'0','0','0','0','','','0','it's');",
         "update filter_ipport set name='网页',ipcontrol='0',ipgroup_id='0',timecontrol='0',timegroup_id='0',"
         "devstartip='a'b',devendip='%s%d',devfromport='0',devtoport='0',protocol='0',weekday1='0',weekday2='0',"
         "weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',status='0',"
         "mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove_by_id = [](int kind) {
        return Operation{"filter_ipport delete by id, kind " + std::to_string(kind),
                         [kind] { DelIpFilterItemById("id='1'", kind); },
                         {execute(4, "delete from filter_ipport where id='1';")}};
    };
    return {remove_by_id(1), remove_by_id(2), remove_by_id(0)};
}

constexpr TimePlaces times{464, 472, 624, 1372, 1400, 1420};
constexpr RangePlaces range{304, 312, 1004, 1440, 1460};
constexpr Replacing cut_from_30_to_20{true, 19};

std::string timed(const std::string &control, const std::string &group) {
    return "insert into filter_ipport values(8,'games',0,0,'','',80,443,6," + control + "," + group +
           ",21,22,23,24,25,26,27,'21:00','22:00',1,'no');";
}

std::string ranged(const std::string &control, const std::string &group) {
    return "insert into filter_ipport values(8,'games'," + control + "," + group +
           ",'10.0.0.1','10.0.0.9',80,443,6,0,0,0,0,0,0,0,0,0,'','',1,'no');";
}

Record rule() {
    return Record(size).number(0, 8).text(4, "games").numbers(1480, {80, 443, 6}).text(1492, "no").number(1644, 1);
}

std::vector<Built> with_columns() {
    return {
        {"plain",
         "insert into filter_ipport values(7,'web',1,3,'192.168.1.10','192.168.1.19',80,443,6,1,5,1,0,11,0,13,14,15,"
         "'08:00','18:30',4,'first floor');",
         Record(size)
             .number(0, 7)
             .text(4, "web")
             .number(304, 1)
             .number(464, 1)
             .numbers(1372, {1, 0, 11, 0, 13, 14, 15})
             .text(1400, "08:00")
             .text(1420, "18:30")
             .text(1440, "192.168.1.10")
             .text(1460, "192.168.1.19")
             .numbers(1480, {80, 443, 6})
             .text(1492, "first floor")
             .number(1644, 4)
             .bytes()},
        {"NULL in every column", "insert into filter_ipport(id) values(8);", Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into filter_ipport values(2147483647,'" + of(299, 'n') + "',-2147483648,3,'" + of(19, 'f') + "','" +
             of(19, 't') + "',2147483647,-2147483648,2147483647,1,5,-2147483648,2147483647,0,0,0,0,-1,'" + of(19, 's') +
             "','" + of(19, 'e') + "',-2147483648,'" + of(151, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(299, 'n'))
             .number(304, lowest)
             .number(464, 1)
             .numbers(1372, {lowest, highest, 0, 0, 0, 0, -1})
             .text(1400, of(19, 's'))
             .text(1420, of(19, 'e'))
             .text(1440, of(19, 'f'))
             .text(1460, of(19, 't'))
             .numbers(1480, {highest, lowest, highest})
             .text(1492, of(151, 'm'))
             .number(1644, lowest)
             .bytes()},
        {"beyond its width is cut",
         "insert into filter_ipport values(8,'" + of(300, 'n') + "',0,0,'" + of(20, 'f') + "','" + of(500, 't') +
             "',1,0,0,1,0,0,0,0,0,0,0,0,'" + of(20, 's') + "','" + of(3000, 'e') + "',0,'" + of(152, 'm') + "');",
         Record(size)
             .number(0, 8)
             .text(4, of(299, 'n'))
             .number(464, 1)
             .text(1400, of(19, 's'))
             .text(1420, of(19, 'e'))
             .text(1440, of(19, 'f'))
             .text(1460, of(19, 't'))
             .number(1480, 1)
             .text(1492, of(151, 'm'))
             .bytes()},
        {"Chinese and apostrophes",
         "insert into filter_ipport values(8,'网页',0,0,'a''b','',0,0,0,0,0,0,0,0,0,0,0,0,'','',0,'it''s');",
         Record(size).number(0, 8).text(4, "网页").text(1440, "a'b").text(1492, "it's").bytes()},
    };
}

}  // namespace

Golden filter_ipport() {
    return {table(), samples(), others(),
            joined(with_columns(),
                   {with_times(timed, rule(), times), with_ranges(ranged, rule(), range, cut_from_30_to_20)})};
}

}  // namespace golden
