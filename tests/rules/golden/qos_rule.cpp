#include "routerdb.h"
#include "rules/golden/golden.h"
#include "rules/golden/references.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 1676;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into qos_rule values(" + number + ",'" + numbered(299, 'n', n) + "',2,'" + numbered(19, 'a', n) +
           "',1," + number + ",'" + numbered(19, 'f', n) + "','" + numbered(19, 't', n) + "',1," + number + ",1,0,1," +
           number + ",0,1,0,'" + numbered(19, 's', n) + "','" + numbered(19, 'e', n) + "'," + number +
           ",2048,1,1,'带宽" + numbered(145, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, numbered(299, 'n', n))
        .numbers(304, {2, 1})
        .number(836, 1)
        .text(1376, numbered(19, 'a', n))
        .text(1396, numbered(19, 'f', n))
        .text(1416, numbered(19, 't', n))
        .numbers(1436, {n, 2048, 1})
        .numbers(1448, {1, 0, 1, n, 0, 1, 0})
        .text(1476, numbered(19, 's', n))
        .text(1496, numbered(19, 'e', n))
        .number(1516, 1)
        .text(1524, "带宽" + numbered(145, 'm', n))
        .bytes();
}

Table table() {
    Table table{"qos_rule", 13, size, 214532};
    table.list = GetQosItemList;
    table.get = GetQosItem;
    table.add = AddQosItem;
    table.modify = ModifyQosItem;
    table.remove = DelQosItem;
    table.build = GetQosItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from qos_rule order by id;";
    table.get_query = "select * from qos_rule where id='7';";
    table.lowest_query = "select * from qos_rule where id='-2147483648';";
    table.remove_until_condition = "delete from qos_rule where ";
    return table;
}

#define COLUMNS                                                                                               \
    "name,control_type,devmac,ipcontrol,ipgroup_id,devstartip,devendip,timecontrol,timegroup_id,weekday1,"    \
    "weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,end_time,bw_up,bw_down,bw_shared_mode," \
    "status,mark"

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "tv")
             .numbers(304, {3, 1, 6})
             .numbers(836, {2, 5})
             .text(1376, "00:11:22:33:44:55")
             .text(1396, "192.168.1.10")
             .text(1416, "192.168.1.19")
             .numbers(1436, {512, 2048, 9})
             .numbers(1448, {1, 0, 11, 0, 13, 14, 15})
             .text(1476, "08:00")
             .text(1496, "18:30")
             .number(1516, 4)
             .text(1524, "first floor")
             .bytes(),
         "insert into qos_rule(" COLUMNS ") values('tv','3','00:11:22:33:44:55','1','6','192.168.1.10',"
         "'192.168.1.19','2','5','1','0','11','0','13','14','15','08:00','18:30','512','2048','9','4','first floor');",
         "update qos_rule set name='tv',control_type='3',devmac='00:11:22:33:44:55',ipcontrol='1',ipgroup_id='6',"
         "devstartip='192.168.1.10',devendip='192.168.1.19',timecontrol='2',timegroup_id='5',weekday1='1',"
         "weekday2='0',weekday3='11',weekday4='0',weekday5='13',weekday6='14',weekday7='15',start_time='08:00',"
         "end_time='18:30',bw_up='512',bw_down='2048',bw_shared_mode='9',status='4',mark='first floor' "
         "where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into qos_rule(" COLUMNS ") values('','0','','0','0','','','0','0','0','0','0','0','0','0','0','','',"
         "'0','0','0','0','');",
         "update qos_rule set name='',control_type='0',devmac='',ipcontrol='0',ipgroup_id='0',devstartip='',"
         "devendip='',timecontrol='0',timegroup_id='0',weekday1='0',weekday2='0',weekday3='0',weekday4='0',"
         "weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',bw_up='0',bw_down='0',"
         "bw_shared_mode='0',status='0',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(300, 'n'))
             .number(304, 1)
             .unterminated(1376, of(20, 'a'))
             .unterminated(1396, of(20, 'f'))
             .unterminated(1416, of(20, 't'))
             .number(1436, 1)
             .unterminated(1476, of(20, 's'))
             .unterminated(1496, of(20, 'e'))
             .number(1516, 1)
             .unterminated(1524, of(152, 'm'))
             .bytes(),
         "insert into qos_rule(" COLUMNS ") values('" + of(300, 'n') + "','1','" + of(20, 'a') + "','0','0','" +
             of(20, 'f') + "','" + of(20, 't') + "','0','0','0','0','0','0','0','0','0','" + of(20, 's') + "','" +
             of(20, 'e') + "','1','0','0','1','" + of(152, 'm') + "');",
         "update qos_rule set name='" + of(300, 'n') + "',control_type='1',devmac='" + of(20, 'a') +
             "',ipcontrol='0',ipgroup_id='0',devstartip='" + of(20, 'f') + "',devendip='" + of(20, 't') +
             "',timecontrol='0',timegroup_id='0',weekday1='0',weekday2='0',weekday3='0',weekday4='0',weekday5='0',"
             "weekday6='0',weekday7='0',start_time='" +
             of(20, 's') + "',end_time='" + of(20, 'e') +
             "',bw_up='1',bw_down='0',bw_shared_mode='0',status='1',mark='" + of(152, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size)
             .number(0, lowest)
             .numbers(304, {highest, lowest, -3})
             .numbers(836, {lowest, highest})
             .numbers(1436, {highest, lowest, -2})
             .numbers(1448, {lowest, highest, lowest, highest, lowest, highest, -1})
             .number(1516, lowest)
             .bytes(),
         "insert into qos_rule(" COLUMNS ") values('','2147483647','','-2147483648','-3','','','-2147483648',"
         "'2147483647','-2147483648','2147483647','-2147483648','2147483647','-2147483648','2147483647','-1','','',"
         "'2147483647','-2147483648','-2','-2147483648','');",
         "update qos_rule set name='',control_type='2147483647',devmac='',ipcontrol='-2147483648',ipgroup_id='-3',"
         "devstartip='',devendip='',timecontrol='-2147483648',timegroup_id='2147483647',weekday1='-2147483648',"
         "weekday2='2147483647',weekday3='-2147483648',weekday4='2147483647',weekday5='-2147483648',"
         "weekday6='2147483647',weekday7='-1',start_time='',end_time='',bw_up='2147483647',bw_down='-2147483648',"
         "bw_shared_mode='-2',status='-2147483648',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "电视").text(1376, "a'b").text(1396, "%s%d").text(1524, "it's").bytes(),
         "insert into qos_rule(" COLUMNS ") values('电视','0','a'b','0','0','%s%d','','0','0','0','0','0','0','0','0',"
         "'0','','','0','0','0','0','it's');",
         "update qos_rule set name='电视',control_type='0',devmac='a'b',ipcontrol='0',ipgroup_id='0',"
         "devstartip='%s%d',devendip='',timecontrol='0',timegroup_id='0',weekday1='0',weekday2='0',weekday3='0',"
         "weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',bw_up='0',bw_down='0',"
         "bw_shared_mode='0',status='0',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove_by_id = [](int kind) {
        return Operation{"qos_rule delete by id, kind " + std::to_string(kind),
                         [kind] { DelQosItemById("id='1'", kind); },
                         {execute(13, "delete from qos_rule where id='1';")}};
    };
    return {remove_by_id(1), remove_by_id(2), remove_by_id(0)};
}

constexpr TimePlaces times{836, 844, 996, 1448, 1476, 1496};
constexpr RangePlaces range{308, 316, 468, 1396, 1416};

std::string timed(const std::string &control, const std::string &group) {
    return "insert into qos_rule values(8,'games',3,'a',0,0,'',''," + control + "," + group +
           ",21,22,23,24,25,26,27,'21:00','22:00',512,2048,1,1,'no');";
}

std::string ranged(const std::string &control, const std::string &group) {
    return "insert into qos_rule values(8,'games',3,'a'," + control + "," + group +
           ",'10.0.0.1','10.0.0.9',0,0,0,0,0,0,0,0,0,'','',512,2048,1,1,'no');";
}

Record rule() {
    return Record(size)
        .number(0, 8)
        .text(4, "games")
        .number(304, 3)
        .text(1376, "a")
        .numbers(1436, {512, 2048, 1})
        .number(1516, 1)
        .text(1524, "no");
}

std::vector<Built> with_columns() {
    return {
        {"plain",
         "insert into qos_rule "
         "values(7,'tv',3,'00:11:22:33:44:55',1,6,'192.168.1.10','192.168.1.19',1,5,1,0,11,0,13,14,"
         "15,'08:00','18:30',512,2048,9,4,'first floor');",
         Record(size)
             .number(0, 7)
             .text(4, "tv")
             .numbers(304, {3, 1})
             .number(836, 1)
             .text(1376, "00:11:22:33:44:55")
             .text(1396, "192.168.1.10")
             .text(1416, "192.168.1.19")
             .numbers(1436, {512, 2048, 9})
             .numbers(1448, {1, 0, 11, 0, 13, 14, 15})
             .text(1476, "08:00")
             .text(1496, "18:30")
             .number(1516, 4)
             .text(1524, "first floor")
             .bytes()},
        {"NULL in every column", "insert into qos_rule(id) values(8);", Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into qos_rule values(2147483647,'" + of(299, 'n') + "',-2147483648,'" + of(19, 'a') +
             "',2147483647,3,'" + of(19, 'f') + "','" + of(19, 't') + "',1,5,-2147483648,2147483647,0,0,0,0,-1,'" +
             of(19, 's') + "','" + of(19, 'e') + "',2147483647,-2147483648,2147483647,-2147483648,'" + of(151, 'm') +
             "');",
         Record(size)
             .number(0, highest)
             .text(4, of(299, 'n'))
             .numbers(304, {lowest, highest})
             .number(836, 1)
             .text(1376, of(19, 'a'))
             .text(1396, of(19, 'f'))
             .text(1416, of(19, 't'))
             .numbers(1436, {highest, lowest, highest})
             .numbers(1448, {lowest, highest, 0, 0, 0, 0, -1})
             .text(1476, of(19, 's'))
             .text(1496, of(19, 'e'))
             .number(1516, lowest)
             .text(1524, of(151, 'm'))
             .bytes()},
        {"beyond its width is cut",
         "insert into qos_rule values(8,'" + of(300, 'n') + "',0,'" + of(20, 'a') + "',0,0,'" + of(20, 'f') + "','" +
             of(500, 't') + "',1,0,0,0,0,0,0,0,0,'" + of(20, 's') + "','" + of(3000, 'e') + "',1,0,0,0,'" +
             of(152, 'm') + "');",
         Record(size)
             .number(0, 8)
             .text(4, of(299, 'n'))
             .number(836, 1)
             .text(1376, of(19, 'a'))
             .text(1396, of(19, 'f'))
             .text(1416, of(19, 't'))
             .number(1436, 1)
             .text(1476, of(19, 's'))
             .text(1496, of(19, 'e'))
             .text(1524, of(151, 'm'))
             .bytes()},
        {"Chinese and apostrophes", "insert into qos_rule(id,name,devmac,mark) values(8,'电视','a''b','it''s');",
         Record(size).number(0, 8).text(4, "电视").text(1376, "a'b").text(1524, "it's").bytes()},
    };
}

}  // namespace

Golden qos_rule() {
    return {table(), samples(), others(),
            joined(with_columns(),
                   {with_times(timed, rule(), times), with_ranges(ranged, rule(), range, own_range_stays)})};
}

}  // namespace golden
