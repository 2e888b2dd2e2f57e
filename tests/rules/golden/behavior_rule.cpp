#include "routerdb.h"
#include "rules/golden/golden.h"
#include "rules/golden/names.h"
#include "rules/golden/references.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 7680;

/// Without an address, whose name would have to be looked up, and without a class, whose name would have to be.
std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into behavior_rule values(" + number + ",3,1," + number + ",1," + number + ",'','" +
           numbered(29, 'f', n) + "','" + numbered(29, 't', n) + "',5,'" + numbered(2047, 'b', n) + "',1,0,1," +
           number + ",0,1,0,'" + numbered(19, 's', n) + "','" + numbered(19, 'e', n) + "'," + number + ",'行为" +
           numbered(145, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .numbers(0, {n, 3})
        .number(160, 1)
        .number(688, 1)
        .text(1248, numbered(29, 'f', n))
        .text(1278, numbered(29, 't', n))
        .text(1308, numbered(2047, 'b', n))
        .numbers(7452, {1, 0, 1, n, 0, 1, 0})
        .text(7480, numbered(19, 's', n))
        .text(7500, numbered(19, 'e', n))
        .text(7520, "行为" + numbered(145, 'm', n))
        .number(7672, n)
        .bytes();
}

Table table() {
    Table table{"behavior_rule", 14, size, 983044};
    table.list = GetBehaviorItemList;
    table.get = GetBehaviorItem;
    table.add = AddBehaviortem;
    table.modify = ModifyBehaviorItem;
    table.long_statements = true;
    table.remove = DelBehaviorItem;
    table.build = GetBehaviorItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from behavior_rule order by id;";
    table.get_query = "select * from behavior_rule where id='7';";
    table.lowest_query = "select * from behavior_rule where id='-2147483648';";
    table.remove_until_condition = "delete from behavior_rule where ";
    return table;
}

#define COLUMNS                                                                                            \
    "control_type,ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,devstartip,devendip,behavior_type," \
    "behavior_info,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,end_time,status,mark"

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .numbers(0, {7, 3})
             .numbers(160, {1, 6})
             .numbers(688, {2, 5})
             .text(1228, "00:11:22:33:44:55")
             .text(1248, "192.168.1.10")
             .text(1278, "192.168.1.19")
             .text(1308, "3:f1?f2AND7:f9")
             .numbers(7452, {1, 0, 11, 0, 13, 14, 15})
             .text(7480, "08:00")
             .text(7500, "18:30")
             .text(7520, "first floor")
             .number(7672, 4)
             .bytes(),
         "insert into behavior_rule(" COLUMNS ") values('3','1','6','2','5','00:11:22:33:44:55','192.168.1.10',"
         "'192.168.1.19','0','3:f1?f2AND7:f9','1','0','11','0','13','14','15','08:00','18:30','4','first floor');",
         "update behavior_rule set control_type='3',ipcontrol='1',ipgroup_id='6',timecontrol='2',timegroup_id='5',"
         "devmac='00:11:22:33:44:55',devstartip='192.168.1.10',devendip='192.168.1.19',behavior_type='0',"
         "behavior_info='3:f1?f2AND7:f9',weekday1='1',weekday2='0',weekday3='11',weekday4='0',weekday5='13',"
         "weekday6='14',weekday7='15',start_time='08:00',end_time='18:30',status='4',mark='first floor' "
         "where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into behavior_rule(" COLUMNS ") values('0','0','0','0','0','','','','0','','0','0','0','0','0','0',"
         "'0','','','0','');",
         "update behavior_rule set control_type='0',ipcontrol='0',ipgroup_id='0',timecontrol='0',timegroup_id='0',"
         "devmac='',devstartip='',devendip='',behavior_type='0',behavior_info='',weekday1='0',weekday2='0',"
         "weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',status='0',"
         "mark='' where id='0';"},
        {"filled to the last character",
         Record(size, 'Z')
             .numbers(0, {9, 1})
             .numbers(160, {0, 0})
             .numbers(688, {0, 0})
             .unterminated(1228, of(20, 'a'))
             .unterminated(1248, of(30, 'f'))
             .unterminated(1278, of(30, 't'))
             .unterminated(1308, of(2048, 'b'))
             .numbers(7452, {1, 0, 0, 0, 0, 0, 0})
             .unterminated(7480, of(20, 's'))
             .unterminated(7500, of(20, 'e'))
             .unterminated(7520, of(152, 'm'))
             .number(7672, 1)
             .bytes(),
         "insert into behavior_rule(" COLUMNS ") values('1','0','0','0','0','" + of(20, 'a') + "','" + of(30, 'f') +
             "','" + of(30, 't') + "','0','" + of(2048, 'b') + "','1','0','0','0','0','0','0','" + of(20, 's') + "','" +
             of(20, 'e') + "','1','" + of(152, 'm') + "');",
         "update behavior_rule set control_type='1',ipcontrol='0',ipgroup_id='0',timecontrol='0',timegroup_id='0',"
         "devmac='" +
             of(20, 'a') + "',devstartip='" + of(30, 'f') + "',devendip='" + of(30, 't') +
             "',behavior_type='0',behavior_info='" + of(2048, 'b') +
             "',weekday1='1',weekday2='0',weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',"
             "start_time='" +
             of(20, 's') + "',end_time='" + of(20, 'e') + "',status='1',mark='" + of(152, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size)
             .numbers(0, {lowest, highest})
             .numbers(160, {lowest, highest})
             .numbers(688, {-3, lowest})
             .numbers(7452, {lowest, highest, lowest, highest, lowest, highest, -1})
             .number(7672, lowest)
             .bytes(),
         "insert into behavior_rule(" COLUMNS ") values('2147483647','-2147483648','2147483647','-3','-2147483648','',"
         "'','','0','','-2147483648','2147483647','-2147483648','2147483647','-2147483648','2147483647','-1','','',"
         "'-2147483648','');",
         "update behavior_rule set control_type='2147483647',ipcontrol='-2147483648',ipgroup_id='2147483647',"
         "timecontrol='-3',timegroup_id='-2147483648',devmac='',devstartip='',devendip='',behavior_type='0',"
         "behavior_info='',weekday1='-2147483648',weekday2='2147483647',weekday3='-2147483648',"
         "weekday4='2147483647',weekday5='-2147483648',weekday6='2147483647',weekday7='-1',start_time='',"
         "end_time='',status='-2147483648',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(1228, "a'b").text(1308, "%s%d:办公室").text(7520, "it's").bytes(),
         "insert into behavior_rule(" COLUMNS ") values('0','0','0','0','0','a'b','','','0','%s%d:办公室','0','0','0',"
         "'0','0','0','0','','','0','it's');",
         "update behavior_rule set control_type='0',ipcontrol='0',ipgroup_id='0',timecontrol='0',timegroup_id='0',"
         "devmac='a'b',devstartip='',devendip='',behavior_type='0',behavior_info='%s%d:办公室',weekday1='0',"
         "weekday2='0',weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',"
         "status='0',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove_by_id = [](int kind) {
        return Operation{"behavior_rule delete by id, kind " + std::to_string(kind),
                         [kind] { DelBehaviorItemById("id='1'", kind); },
                         {execute(14, "delete from behavior_rule where id='1';")}};
    };
    return {remove_by_id(1), remove_by_id(2), remove_by_id(0)};
}

constexpr TimePlaces times{688, 696, 848, 7452, 7480, 7500};
constexpr RangePlaces range{160, 536, 168, 1248, 1278};
constexpr Replacing whole{true, 29};
constexpr HostPlaces host{1228, 8};
constexpr NamePlaces names{1308, 3356, 5404};

/// Row 8 with one part of it given.
std::string insert(const std::string &columns, const std::string &values) {
    return "insert into behavior_rule(id,control_type,behavior_type,status,mark," + columns + ") values(8,3,5,1,'no'," +
           values + ");";
}

Record rule() {
    return Record(size).numbers(0, {8, 3}).text(7520, "no").number(7672, 1);
}

std::string timed(const std::string &control, const std::string &group) {
    return insert(
        "timecontrol,timegroup_id,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7,start_time,"
        "end_time",
        control + "," + group + ",21,22,23,24,25,26,27,'21:00','22:00'");
}

std::string ranged(const std::string &control, const std::string &group) {
    return insert("ipcontrol,ipgroup_id,devstartip,devendip", control + "," + group + ",'10.0.0.1','10.0.0.9'");
}

std::string addressed(const std::string &mac) {
    return insert("devmac", mac);
}

std::string informed(const std::string &info) {
    return insert("behavior_info", info);
}

std::vector<Built> with_columns() {
    return {
        {"plain",
         "insert into behavior_rule values(7,3,1,6,1,5,'','192.168.1.10','192.168.1.19',9,'chat',1,0,11,0,13,14,15,"
         "'08:00','18:30',4,'first floor');",
         Record(size)
             .numbers(0, {7, 3})
             .number(160, 1)
             .number(688, 1)
             .text(1248, "192.168.1.10")
             .text(1278, "192.168.1.19")
             .text(1308, "chat")
             .numbers(7452, {1, 0, 11, 0, 13, 14, 15})
             .text(7480, "08:00")
             .text(7500, "18:30")
             .text(7520, "first floor")
             .number(7672, 4)
             .bytes()},
        {"NULL in every column", "insert into behavior_rule(id) values(8);", Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into behavior_rule values(2147483647,-2147483648,2147483647,3,1,5,'" + of(19, 'A') + "','" +
             of(29, 'f') + "','" + of(29, 't') + "',9,'" + of(2047, 'b') + "',-2147483648,2147483647,0,0,0,0,-1,'" +
             of(19, 's') + "','" + of(19, 'e') + "',-2147483648,'" + of(151, 'm') + "');",
         Record(size)
             .numbers(0, {highest, lowest})
             .number(160, highest)
             .number(688, 1)
             .text(1228, of(19, 'A'))
             .text(1248, of(29, 'f'))
             .text(1278, of(29, 't'))
             .text(1308, of(2047, 'b'))
             .numbers(7452, {lowest, highest, 0, 0, 0, 0, -1})
             .text(7480, of(19, 's'))
             .text(7500, of(19, 'e'))
             .text(7520, of(151, 'm'))
             .number(7672, lowest)
             .bytes(),
         other_lease},
        {"beyond its width is cut",
         "insert into behavior_rule values(8,0,0,0,1,0,'" + of(20, 'A') + "','" + of(30, 'f') + "','" + of(500, 't') +
             "',0,'" + of(5000, 'b') + "',0,0,0,0,0,0,0,'" + of(20, 's') + "','" + of(3000, 'e') + "',0,'" +
             of(152, 'm') + "');",
         Record(size)
             .number(0, 8)
             .number(688, 1)
             .text(1228, of(19, 'A'))
             .text(1248, of(29, 'f'))
             .text(1278, of(29, 't'))
             .text(1308, of(2047, 'b'))
             .text(7480, of(19, 's'))
             .text(7500, of(19, 'e'))
             .text(7520, of(151, 'm'))
             .bytes(),
         other_lease},
        {"Chinese and apostrophes", "insert into behavior_rule(id,behavior_info,mark) values(8,'a''b','办公室 it''s');",
         Record(size).number(0, 8).text(1308, "a'b").text(7520, "办公室 it's").bytes()},
    };
}

}  // namespace

Golden behavior_rule() {
    return {table(), samples(), others(),
            joined(with_columns(),
                   {with_times(timed, rule(), times), with_ranges(ranged, rule(), range, whole),
                    with_host_names(addressed, rule(), host), with_application_names(informed, rule(), names)})};
}

}  // namespace golden
