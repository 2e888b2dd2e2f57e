#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 336;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into famliymember values(" + number + ",'孩子" + numbered(143, 'n', n) + "','" +
           numbered(19, 'a', n) + "',-" + number + ",'" + numbered(155, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, "孩子" + numbered(143, 'n', n))
        .text(154, numbered(19, 'a', n))
        .number(176, -n)
        .text(180, numbered(155, 'm', n))
        .bytes();
}

Table table() {
    Table table{"famliymember", 11, size, 43012};
    table.list = GetFamliyMemberItemList;
    table.get = GetFamliyMemberItem;
    table.add = AddFamliyMemberItem;
    table.modify = ModifyFamliyMemberItem;
    table.remove = DelFamliyMemberItem;
    table.build = GetFamliyMemberItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from famliymember order by id;";
    table.get_query = "select * from famliymember where id='7';";
    table.lowest_query = "select * from famliymember where id='-2147483648';";
    table.remove_until_condition = "delete from famliymember where ";
    return table;
}

std::vector<Sample> samples() {
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "tablet")
             .text(154, "00:11:22:AA:BB:CC")
             .number(176, 3)
             .text(180, "without games")
             .bytes(),
         "insert into famliymember(name,mac,devtype,mark) values('tablet','00:11:22:AA:BB:CC','3','without games');",
         "update famliymember set name='tablet',mac='00:11:22:AA:BB:CC',devtype='3',mark='without games' "
         "where id='7';"},
        {"empty", Record(size).bytes(), "insert into famliymember(name,mac,devtype,mark) values('','','0','');",
         "update famliymember set name='',mac='',devtype='0',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(150, 'n'))
             .unterminated(154, of(20, 'a'))
             .unterminated(174, "rr")
             .number(176, 1)
             .unterminated(180, of(156, 'm'))
             .bytes(),
         "insert into famliymember(name,mac,devtype,mark) values('" + of(150, 'n') + "','" + of(20, 'a') + "','1','" +
             of(156, 'm') + "');",
         "update famliymember set name='" + of(150, 'n') + "',mac='" + of(20, 'a') + "',devtype='1',mark='" +
             of(156, 'm') + "' where id='9';"},
        {"utmost numbers", Record(size).number(0, lowest).number(176, highest).bytes(),
         "insert into famliymember(name,mac,devtype,mark) values('','','2147483647','');",
         "update famliymember set name='',mac='',devtype='2147483647',mark='' where id='-2147483648';"},
        {"utmost numbers the other way round", Record(size).number(0, highest).number(176, lowest).bytes(),
         "insert into famliymember(name,mac,devtype,mark) values('','','-2147483648','');",
         "update famliymember set name='',mac='',devtype='-2147483648',mark='' where id='2147483647';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "孩子").text(154, "%s%d'").text(180, "it's").bytes(),
         "insert into famliymember(name,mac,devtype,mark) values('孩子','%s%d'','0','it's');",
         "update famliymember set name='孩子',mac='%s%d'',devtype='0',mark='it's' where id='8';"},
    };
}

std::vector<Built> built() {
    return {
        {"plain", "insert into famliymember values(7,'tablet','00:11:22:AA:BB:CC',3,'without games');",
         Record(size)
             .number(0, 7)
             .text(4, "tablet")
             .text(154, "00:11:22:AA:BB:CC")
             .number(176, 3)
             .text(180, "without games")
             .bytes()},
        {"NULL in every column", "insert into famliymember values(8,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into famliymember values(2147483647,'" + of(149, 'n') + "','" + of(19, 'a') + "',-2147483648,'" +
             of(155, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(149, 'n'))
             .text(154, of(19, 'a'))
             .number(176, lowest)
             .text(180, of(155, 'm'))
             .bytes()},
        {"beyond its width is cut",
         "insert into famliymember values(-2147483648,'" + of(150, 'n') + "','" + of(500, 'a') + "',2147483647,'" +
             of(156, 'm') + "');",
         Record(size)
             .number(0, lowest)
             .text(4, of(149, 'n'))
             .text(154, of(19, 'a'))
             .number(176, highest)
             .text(180, of(155, 'm'))
             .bytes()},
        {"a number stored as text", "insert into famliymember values(8,'','','2nd','');",
         Record(size).number(0, 8).number(176, 2).bytes()},
        {"a text that is no number", "insert into famliymember values(8,'','','phone','');",
         Record(size).number(0, 8).bytes()},
        {"Chinese and apostrophes", "insert into famliymember values(8,'孩子','',0,'it''s');",
         Record(size).number(0, 8).text(4, "孩子").text(180, "it's").bytes()},
    };
}

}  // namespace

Golden famliymember() {
    return {table(), samples(), {}, built()};
}

}  // namespace golden
