#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 368;

std::string row(int n) {
    return "insert into user_ipgroup values(" + std::to_string(n) + ",'办公室" + numbered(140, 'n', n) + "','" +
           numbered(29, 's', n) + "','" + numbered(29, 'e', n) + "','" + numbered(153, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, "办公室" + numbered(140, 'n', n))
        .text(154, numbered(29, 's', n))
        .text(184, numbered(29, 'e', n))
        .text(214, numbered(153, 'm', n))
        .bytes();
}

Table table() {
    Table table{"user_ipgroup", 6, size, 47108};
    table.list = GetIpGroupItemList;
    table.get = GetIpGroupItem;
    table.add = AddIpGroupItem;
    table.modify = ModifyIpGroupItem;
    table.remove = DelIpGroupItem;
    table.build = GetIpGroupItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from user_ipgroup order by id;";
    table.get_query = "select * from user_ipgroup where id='7';";
    table.lowest_query = "select * from user_ipgroup where id='-2147483648';";
    table.remove_until_condition = "delete from user_ipgroup where ";
    return table;
}

std::vector<Sample> samples() {
    return {
        // Every text has odd bytes behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "guests")
             .text(154, "192.168.1.100")
             .text(184, "192.168.1.150")
             .text(214, "second floor")
             .bytes(),
         "insert into user_ipgroup(name,startip,endip,mark) values('guests','192.168.1.100','192.168.1.150',"
         "'second floor');",
         "update user_ipgroup set name='guests',startip='192.168.1.100',endip='192.168.1.150',mark='second floor' "
         "where id='7';"},
        {"empty", Record(size).bytes(), "insert into user_ipgroup(name,startip,endip,mark) values('','','','');",
         "update user_ipgroup set name='',startip='',endip='',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(150, 'n'))
             .unterminated(154, of(30, 's'))
             .unterminated(184, of(30, 'e'))
             .unterminated(214, of(154, 'm'))
             .bytes(),
         "insert into user_ipgroup(name,startip,endip,mark) values('" + of(150, 'n') + "','" + of(30, 's') + "','" +
             of(30, 'e') + "','" + of(154, 'm') + "');",
         "update user_ipgroup set name='" + of(150, 'n') + "',startip='" + of(30, 's') + "',endip='" + of(30, 'e') +
             "',mark='" + of(154, 'm') + "' where id='9';"},
        {"lowest id", Record(size).number(0, lowest).text(4, "low").bytes(),
         "insert into user_ipgroup(name,startip,endip,mark) values('low','','','');",
         "update user_ipgroup set name='low',startip='',endip='',mark='' where id='-2147483648';"},
        {"highest id", Record(size).number(0, highest).text(214, "high").bytes(),
         "insert into user_ipgroup(name,startip,endip,mark) values('','','','high');",
         "update user_ipgroup set name='',startip='',endip='',mark='high' where id='2147483647';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "访客").text(154, "%s%d").text(184, "'").text(214, "it's 100%").bytes(),
         "insert into user_ipgroup(name,startip,endip,mark) values('访客','%s%d',''','it's 100%');",
         "update user_ipgroup set name='访客',startip='%s%d',endip=''',mark='it's 100%' where id='8';"},
    };
}

std::vector<Built> built() {
    return {
        {"plain", "insert into user_ipgroup values(7,'guests','192.168.1.100','192.168.1.150','second floor');",
         Record(size)
             .number(0, 7)
             .text(4, "guests")
             .text(154, "192.168.1.100")
             .text(184, "192.168.1.150")
             .text(214, "second floor")
             .bytes()},
        {"NULL in every column", "insert into user_ipgroup values(8,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into user_ipgroup values(2147483647,'" + of(149, 'n') + "','" + of(29, 's') + "','" + of(29, 'e') +
             "','" + of(153, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(149, 'n'))
             .text(154, of(29, 's'))
             .text(184, of(29, 'e'))
             .text(214, of(153, 'm'))
             .bytes()},
        {"beyond its width is cut",
         "insert into user_ipgroup values(-2147483648,'" + of(150, 'n') + "','" + of(30, 's') + "','" + of(500, 'e') +
             "','" + of(154, 'm') + "');",
         Record(size)
             .number(0, lowest)
             .text(4, of(149, 'n'))
             .text(154, of(29, 's'))
             .text(184, of(29, 'e'))
             .text(214, of(153, 'm'))
             .bytes()},
        {"numbers where texts are expected", "insert into user_ipgroup values(8,1,-2,3.5,10);",
         Record(size).number(0, 8).text(4, "1").text(154, "-2").text(184, "3.5").text(214, "10").bytes()},
        {"Chinese and apostrophes", "insert into user_ipgroup values(8,'访客','','','it''s');",
         Record(size).number(0, 8).text(4, "访客").text(214, "it's").bytes()},
    };
}

}  // namespace

Golden user_ipgroup() {
    return {table(), samples(), {}, built()};
}

}  // namespace golden
