#include "routerdb.h"
#include "rules/golden/golden.h"
#include "rules/golden/names.h"
#include "rules/golden/references.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 1088;

/// Without an address, whose name would have to be looked up.
std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into filter_mac values(" + number + ",'" + numbered(149, 'n', n) + "','',1," + number + ",1,0,1," +
           number + ",0,1,0,'" + numbered(19, 's', n) + "','" + numbered(19, 'e', n) + "'," + number + ",'平板" +
           numbered(145, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, numbered(149, 'n', n))
        .number(324, 1)
        .numbers(484, {1, 0, 1, n, 0, 1, 0})
        .text(512, numbered(19, 's', n))
        .text(532, numbered(19, 'e', n))
        .number(552, n)
        .text(556, "平板" + numbered(145, 'm', n))
        .bytes();
}

Table table() {
    Table table{"filter_mac", 3, size, 139268};
    table.list = GetMacFilterItemList;
    table.get = GetMacFilterItem;
    table.add = AddMacFilterItem;
    table.modify = ModifyMacFilterItem;
    table.remove = DelMacFilterItem;
    table.build = GetMacFilterItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from filter_mac order by id;";
    table.get_query = "select * from filter_mac where id='7';";
    table.lowest_query = "select * from filter_mac where id='-2147483648';";
    table.remove_until_condition = "delete from filter_mac where ";
    table.without_lock_file = {"", "cannot open /var/databaselock!\n"};
    table.without_database = {"", "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n"};
    table.without_table = {"cannot prepare sql cmdline, Error: no such table: nowhere\n", ""};
    return table;
}

#define COLUMNS                                                                                            \
    "name,devmac,timecontrol,timegroup_id,weekday1,weekday2,weekday3,weekday4,weekday5,weekday6,weekday7," \
    "start_time,end_time,status,mark"

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "tablet")
             .text(304, "00:11:22:33:44:55")
             .numbers(324, {1, 5})
             .numbers(484, {1, 0, 11, 0, 13, 14, 15})
             .text(512, "08:00")
             .text(532, "18:30")
             .number(552, 1)
             .text(556, "first floor")
             .bytes(),
         "insert into filter_mac(" COLUMNS ") values('tablet','00:11:22:33:44:55','1','5','1','0','11','0','13',"
         "'14','15','08:00','18:30','1','first floor');",
         "update filter_mac set name='tablet',devmac='00:11:22:33:44:55',timecontrol='1',timegroup_id='5',"
         "weekday1='1',weekday2='0',weekday3='11',weekday4='0',weekday5='13',weekday6='14',weekday7='15',"
         "start_time='08:00',end_time='18:30',status='1',mark='first floor' where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into filter_mac(" COLUMNS ") values('','','0','0','0','0','0','0','0','0','0','','','0','');",
         "update filter_mac set name='',devmac='',timecontrol='0',timegroup_id='0',weekday1='0',weekday2='0',"
         "weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',status='0',"
         "mark='' where id='0';"},
        {"filled to the last character",
         Record(size, 'Z')
             .number(0, 9)
             .unterminated(4, of(150, 'n'))
             .unterminated(304, of(20, 'a'))
             .numbers(324, {0, 0})
             .numbers(484, {1, 0, 0, 0, 0, 0, 0})
             .unterminated(512, of(20, 's'))
             .unterminated(532, of(20, 'e'))
             .number(552, 1)
             .unterminated(556, of(152, 'm'))
             .bytes(),
         "insert into filter_mac(" COLUMNS ") values('" + of(150, 'n') + "','" + of(20, 'a') +
             "','0','0','1','0','0','0','0','0','0','" + of(20, 's') + "','" + of(20, 'e') + "','1','" + of(152, 'm') +
             "');",
         "update filter_mac set name='" + of(150, 'n') + "',devmac='" + of(20, 'a') +
             "',timecontrol='0',timegroup_id='0',weekday1='1',weekday2='0',weekday3='0',weekday4='0',weekday5='0',"
             "weekday6='0',weekday7='0',start_time='" +
             of(20, 's') + "',end_time='" + of(20, 'e') + "',status='1',mark='" + of(152, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size)
             .number(0, lowest)
             .numbers(324, {highest, lowest})
             .numbers(484, {lowest, highest, lowest, highest, lowest, highest, -1})
             .number(552, lowest)
             .bytes(),
         "insert into filter_mac(" COLUMNS ") values('','','2147483647','-2147483648','-2147483648','2147483647',"
         "'-2147483648','2147483647','-2147483648','2147483647','-1','','','-2147483648','');",
         "update filter_mac set name='',devmac='',timecontrol='2147483647',timegroup_id='-2147483648',"
         "weekday1='-2147483648',weekday2='2147483647',weekday3='-2147483648',weekday4='2147483647',"
         "weekday5='-2147483648',weekday6='2147483647',weekday7='-1',start_time='',end_time='',"
         "status='-2147483648',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "平板").text(304, "a'b%s%d").text(556, "it's").bytes(),
         "insert into filter_mac(" COLUMNS ") values('平板','a'b%s%d','0','0','0','0','0','0','0','0','0','','','0',"
         "'it's');",
         "update filter_mac set name='平板',devmac='a'b%s%d',timecontrol='0',timegroup_id='0',weekday1='0',"
         "weekday2='0',weekday3='0',weekday4='0',weekday5='0',weekday6='0',weekday7='0',start_time='',end_time='',"
         "status='0',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove_by_id = [](int kind) {
        return Operation{"filter_mac delete by id, kind " + std::to_string(kind),
                         [kind] { DelMacFilterItemById("id='1'", kind); },
                         {execute(3, "delete from filter_mac where id='1';")}};
    };
    return {remove_by_id(1),
            remove_by_id(2),
            remove_by_id(0),
            {"filter_mac delete all", DelMacFilterItemAll, {execute(3, "delete from filter_mac;")}}};
}

constexpr TimePlaces times{324, 332, 708, 484, 512, 532};
constexpr HostPlaces host{304, 154};

std::string timed(const std::string &control, const std::string &group) {
    return "insert into filter_mac values(8,'games',''," + control + "," + group +
           ",21,22,23,24,25,26,27,'21:00','22:00',1,'no');";
}

std::string addressed(const std::string &mac) {
    return "insert into filter_mac values(8,'games'," + mac + ",0,0,0,0,0,0,0,0,0,'','',1,'no');";
}

Record rule() {
    return Record(size).number(0, 8).text(4, "games").number(552, 1).text(556, "no");
}

std::vector<Built> with_columns() {
    return {
        {"plain",
         "insert into filter_mac values(7,'tablet','00:11:22:33:44:55',1,3,1,0,11,0,13,14,15,'08:00','18:30',0,"
         "'first floor');",
         Record(size)
             .number(0, 7)
             .text(4, "tablet")
             .text(304, "00:11:22:33:44:55")
             .number(324, 1)
             .numbers(484, {1, 0, 11, 0, 13, 14, 15})
             .text(512, "08:00")
             .text(532, "18:30")
             .text(556, "first floor")
             .bytes(),
         other_lease},
        {"NULL in every column",
         "insert into filter_mac values(8,null,null,null,null,null,null,null,null,null,null,null,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into filter_mac values(2147483647,'" + of(149, 'n') + "','" + of(19, 'A') +
             "',1,0,-2147483648,2147483647,0,0,0,0,-1,'" + of(19, 's') + "','" + of(19, 'e') + "',2147483647,'" +
             of(151, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(149, 'n'))
             .text(304, of(19, 'A'))
             .number(324, 1)
             .numbers(484, {lowest, highest, 0, 0, 0, 0, -1})
             .text(512, of(19, 's'))
             .text(532, of(19, 'e'))
             .number(552, highest)
             .text(556, of(151, 'm'))
             .bytes(),
         other_lease},
        {"beyond its width is cut",
         "insert into filter_mac values(8,'" + of(150, 'n') + "','" + of(3000, 'A') + "',1,0,0,0,0,0,0,0,0,'" +
             of(20, 's') + "','" + of(500, 'e') + "',1,'" + of(152, 'm') + "');",
         Record(size)
             .number(0, 8)
             .text(4, of(149, 'n'))
             .text(304, of(19, 'A'))
             .number(324, 1)
             .text(512, of(19, 's'))
             .text(532, of(19, 'e'))
             .number(552, 1)
             .text(556, of(151, 'm'))
             .bytes(),
         other_lease},
        {"Chinese and apostrophes", "insert into filter_mac values(8,'平板','',0,0,0,0,0,0,0,0,0,'','',0,'it''s');",
         Record(size).number(0, 8).text(4, "平板").text(556, "it's").bytes()},
    };
}

}  // namespace

Golden filter_mac() {
    return {table(), samples(), others(),
            joined(with_columns(), {with_times(timed, rule(), times), with_host_names(addressed, rule(), host)})};
}

}  // namespace golden
