#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 508;

// The members of the record stand in another order than the columns, which name the internal ports first.

std::string row(int n) {
    const auto number = [n](int offset) { return std::to_string(offset + n); };
    return "insert into forword_ipport values(" + number(0) + ",'服务器" + numbered(290, 'n', n) + "','" +
           numbered(19, 'i', n) + "'," + number(10'000) + "," + number(20'000) + "," + number(30'000) + "," +
           number(40'000) + "," + number(50'000) + "," + number(60'000) + "," + number(70'000) + ",'" +
           numbered(151, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, "服务器" + numbered(290, 'n', n))
        .number(304, 10'000 + n)
        .text(308, numbered(19, 'i', n))
        .numbers(328, {40'000 + n, 50'000 + n, 20'000 + n, 30'000 + n, 70'000 + n})
        .text(348, numbered(151, 'm', n))
        .number(500, 60'000 + n)
        .bytes();
}

Table table() {
    Table table{"forword_ipport", 12, size, 65028};
    table.list = GetPortFwItemList;
    table.get = GetPortFwItem;
    table.add = AddPortFwItem;
    table.modify = ModifyPortFwItem;
    table.remove = DelPortFwItem;
    table.build = GetPortFwItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from forword_ipport order by Id;";
    table.get_query = "select * from forword_ipport where id='7';";
    table.lowest_query = "select * from forword_ipport where id='-2147483648';";
    table.remove_until_condition = "delete from forword_ipport where ";
    return table;
}

#define COLUMNS \
    "name,devip,protocol,devinnerfromport,devinnertoport,devexternfromport,devexterntoport,wanid,status,mark"

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "web server")
             .number(304, 6)
             .text(308, "192.168.1.9")
             .numbers(328, {8080, 8081, 80, 81, 1})
             .text(348, "cellar")
             .number(500, 2)
             .bytes(),
         "insert into forword_ipport(" COLUMNS ") values('web server','192.168.1.9','6','80','81','8080','8081','2',"
         "'1','cellar');",
         "update forword_ipport set name='web server',devip='192.168.1.9',protocol='6',devinnerfromport='80',"
         "devinnertoport='81',devexternfromport='8080',devexterntoport='8081',wanid='2',status='1',mark='cellar' "
         "where id='7';"},
        {"empty", Record(size).bytes(),
         "insert into forword_ipport(" COLUMNS ") values('','','0','0','0','0','0','0','0','');",
         "update forword_ipport set name='',devip='',protocol='0',devinnerfromport='0',devinnertoport='0',"
         "devexternfromport='0',devexterntoport='0',wanid='0',status='0',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(300, 'n'))
             .number(304, 1)
             .unterminated(308, of(20, 'i'))
             .number(328, 4)
             .unterminated(348, of(152, 'm'))
             .number(500, 5)
             .unterminated(504, "rrrr")
             .bytes(),
         "insert into forword_ipport(" COLUMNS ") values('" + of(300, 'n') + "','" + of(20, 'i') +
             "','1','0','0','4','0','5','0','" + of(152, 'm') + "');",
         "update forword_ipport set name='" + of(300, 'n') + "',devip='" + of(20, 'i') +
             "',protocol='1',devinnerfromport='0',devinnertoport='0',devexternfromport='4',devexterntoport='0',"
             "wanid='5',status='0',mark='" +
             of(152, 'm') + "' where id='9';"},
        {"utmost numbers",
         Record(size)
             .number(0, lowest)
             .number(304, highest)
             .numbers(328, {lowest, highest, highest, lowest, -1})
             .number(500, lowest)
             .bytes(),
         "insert into forword_ipport(" COLUMNS ") values('','','2147483647','2147483647','-2147483648','-2147483648',"
         "'2147483647','-2147483648','-1','');",
         "update forword_ipport set name='',devip='',protocol='2147483647',devinnerfromport='2147483647',"
         "devinnertoport='-2147483648',devexternfromport='-2147483648',devexterntoport='2147483647',"
         "wanid='-2147483648',status='-1',mark='' where id='-2147483648';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "服务器").text(308, "%s%d'").text(348, "it's").bytes(),
         "insert into forword_ipport(" COLUMNS ") values('服务器','%s%d'','0','0','0','0','0','0','0','it's');",
         "update forword_ipport set name='服务器',devip='%s%d'',protocol='0',devinnerfromport='0',devinnertoport='0',"
         "devexternfromport='0',devexterntoport='0',wanid='0',status='0',mark='it's' where id='8';"},
    };
}

std::vector<Built> built() {
    return {
        {"plain", "insert into forword_ipport values(7,'web server','192.168.1.9',6,80,81,8080,8081,2,1,'cellar');",
         Record(size)
             .number(0, 7)
             .text(4, "web server")
             .number(304, 6)
             .text(308, "192.168.1.9")
             .numbers(328, {8080, 8081, 80, 81, 1})
             .text(348, "cellar")
             .number(500, 2)
             .bytes()},
        {"NULL in every column",
         "insert into forword_ipport values(8,null,null,null,null,null,null,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into forword_ipport values(2147483647,'" + of(299, 'n') + "','" + of(19, 'i') +
             "',-2147483648,2147483647,-2147483648,-1,2147483647,-2147483648,2147483647,'" + of(151, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(299, 'n'))
             .number(304, lowest)
             .text(308, of(19, 'i'))
             .numbers(328, {-1, highest, highest, lowest, highest})
             .text(348, of(151, 'm'))
             .number(500, lowest)
             .bytes()},
        {"beyond its width is cut",
         "insert into forword_ipport values(-2147483648,'" + of(300, 'n') + "','" + of(500, 'i') + "',1,2,3,4,5,6,7,'" +
             of(152, 'm') + "');",
         Record(size)
             .number(0, lowest)
             .text(4, of(299, 'n'))
             .number(304, 1)
             .text(308, of(19, 'i'))
             .numbers(328, {4, 5, 2, 3, 7})
             .text(348, of(151, 'm'))
             .number(500, 6)
             .bytes()},
        {"numbers stored as text",
         "insert into forword_ipport values(8,'','','tcp',' 1','2nd','-4','5.9','1e3',1.9,'');",
         Record(size).number(0, 8).numbers(328, {-4, 5, 1, 2, 1}).number(500, 1000).bytes()},
        {"Chinese and apostrophes", "insert into forword_ipport values(8,'服务器','',0,0,0,0,0,0,0,'it''s');",
         Record(size).number(0, 8).text(4, "服务器").text(348, "it's").bytes()},
    };
}

}  // namespace

Golden forword_ipport() {
    return {table(), samples(), {}, built()};
}

}  // namespace golden
