#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 676;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into domain_ip values(" + number + ",'打印机" + numbered(290, 'n', n) + "','" +
           numbered(149, 'd', n) + "','" + numbered(63, 'i', n) + "',-" + number + ",'" + numbered(149, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, "打印机" + numbered(290, 'n', n))
        .text(304, numbered(149, 'd', n))
        .text(454, numbered(63, 'i', n))
        .text(518, numbered(149, 'm', n))
        .number(668, -n)
        .bytes();
}

Table table() {
    Table table{"domain_ip", 18, size, 86532};
    table.list = GetDomainIpItemList;
    table.get = GetDomainIpItem;
    table.add = AddDomainIpItem;
    table.modify = ModifyDomainIpItem;
    table.remove = DelDomainIpItem;
    table.build = GetDomainIpItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from domain_ip order by id;";
    table.get_query = "select * from domain_ip where id='7';";
    table.lowest_query = "select * from domain_ip where id='-2147483648';";
    table.remove_until_condition = "delete from domain_ip where ";
    table.remove_id = 4;
    return table;
}

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "printer")
             .text(304, "printer.example.com")
             .text(454, "192.168.1.9")
             .text(518, "cellar")
             .number(668, 1)
             .bytes(),
         "insert into domain_ip(name,domain,ip,status,mark) values('printer','printer.example.com','192.168.1.9','1',"
         "'cellar');",
         "update domain_ip set name='printer',domain='printer.example.com',ip='192.168.1.9',status='1',mark='cellar' "
         "where id='7';"},
        {"empty", Record(size).bytes(), "insert into domain_ip(name,domain,ip,status,mark) values('','','','0','');",
         "update domain_ip set name='',domain='',ip='',status='0',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(300, 'n'))
             .unterminated(304, of(150, 'd'))
             .unterminated(454, of(64, 'i'))
             .unterminated(518, of(150, 'm'))
             .number(668, 1)
             .unterminated(672, "rrrr")
             .bytes(),
         "insert into domain_ip(name,domain,ip,status,mark) values('" + of(300, 'n') + "','" + of(150, 'd') + "','" +
             of(64, 'i') + "','1','" + of(150, 'm') + "');",
         "update domain_ip set name='" + of(300, 'n') + "',domain='" + of(150, 'd') + "',ip='" + of(64, 'i') +
             "',status='1',mark='" + of(150, 'm') + "' where id='9';"},
        {"utmost numbers", Record(size).number(0, lowest).number(668, highest).bytes(),
         "insert into domain_ip(name,domain,ip,status,mark) values('','','','2147483647','');",
         "update domain_ip set name='',domain='',ip='',status='2147483647',mark='' where id='-2147483648';"},
        {"utmost numbers the other way round", Record(size).number(0, highest).number(668, lowest).bytes(),
         "insert into domain_ip(name,domain,ip,status,mark) values('','','','-2147483648','');",
         "update domain_ip set name='',domain='',ip='',status='-2147483648',mark='' where id='2147483647';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "打印机").text(304, "a'b%s%d").text(454, "%n").text(518, "it's").bytes(),
         "insert into domain_ip(name,domain,ip,status,mark) values('打印机','a'b%s%d','%n','0','it's');",
         "update domain_ip set name='打印机',domain='a'b%s%d',ip='%n',status='0',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    return {{"domain_ip delete of one row",
             [] { DelDomainIpItem("id='5'"); },
             {execute(4, "delete from domain_ip where id='5';")}}};
}

std::vector<Built> built() {
    return {
        {"plain", "insert into domain_ip values(7,'printer','printer.example.com','192.168.1.9',1,'cellar');",
         Record(size)
             .number(0, 7)
             .text(4, "printer")
             .text(304, "printer.example.com")
             .text(454, "192.168.1.9")
             .text(518, "cellar")
             .number(668, 1)
             .bytes()},
        {"NULL in every column", "insert into domain_ip values(8,null,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into domain_ip values(2147483647,'" + of(299, 'n') + "','" + of(149, 'd') + "','" + of(63, 'i') +
             "',-2147483648,'" + of(149, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(299, 'n'))
             .text(304, of(149, 'd'))
             .text(454, of(63, 'i'))
             .text(518, of(149, 'm'))
             .number(668, lowest)
             .bytes()},
        {"beyond its width is cut",
         "insert into domain_ip values(-2147483648,'" + of(300, 'n') + "','" + of(500, 'd') + "','" + of(64, 'i') +
             "',2147483647,'" + of(150, 'm') + "');",
         Record(size)
             .number(0, lowest)
             .text(4, of(299, 'n'))
             .text(304, of(149, 'd'))
             .text(454, of(63, 'i'))
             .text(518, of(149, 'm'))
             .number(668, highest)
             .bytes()},
        {"a number stored as text", "insert into domain_ip values(8,'','','','1st','');",
         Record(size).number(0, 8).number(668, 1).bytes()},
        {"a text that is no number", "insert into domain_ip values(8,'','','','on','');",
         Record(size).number(0, 8).bytes()},
        {"Chinese and apostrophes", "insert into domain_ip values(8,'打印机','a''b','',0,'it''s');",
         Record(size).number(0, 8).text(4, "打印机").text(304, "a'b").text(518, "it's").bytes()},
    };
}

}  // namespace

Golden domain_ip() {
    return {table(), samples(), others(), built()};
}

}  // namespace golden
