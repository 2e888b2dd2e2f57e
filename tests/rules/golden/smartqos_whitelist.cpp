#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 328;

std::string row(int n) {
    return "insert into smartqos_whitelist values(" + std::to_string(n) + ",'" + numbered(19, 'd', n) + "','电视机" +
           numbered(144, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(154, numbered(19, 'd', n))
        .text(174, "电视机" + numbered(144, 'm', n))
        .bytes();
}

Table table() {
    Table table{"smartqos_whitelist", 7, size, 41988};
    table.list = GetSmartQosItemList;
    table.get = GetSmartQosItem;
    table.add = AddSmartQosItem;
    table.modify = ModifySmartQosItem;
    table.remove_row = DelSmartQosItem;
    table.build = GetSmartQosItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from smartqos_whitelist order by id;";
    table.get_query = "select * from smartqos_whitelist where id='7';";
    table.lowest_query = "select * from smartqos_whitelist where id='-2147483648';";
    return table;
}

std::vector<Sample> samples() {
    return {
        // The reserved area has odd bytes, and so has every text behind its terminator.
        {"plain", Record(size, 'Z').number(0, 7).text(154, "00:11:22:AA:BB:CC").text(174, "living room").bytes(),
         "insert into smartqos_whitelist(devmac,mark) values('00:11:22:AA:BB:CC','living room');",
         "update smartqos_whitelist set devmac='00:11:22:AA:BB:CC',mark='living room' where id='7';"},
        {"empty", Record(size).bytes(), "insert into smartqos_whitelist(devmac,mark) values('','');",
         "update smartqos_whitelist set devmac='',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(150, 'r'))
             .unterminated(154, of(20, 'd'))
             .unterminated(174, of(154, 'm'))
             .bytes(),
         "insert into smartqos_whitelist(devmac,mark) values('" + of(20, 'd') + "','" + of(154, 'm') + "');",
         "update smartqos_whitelist set devmac='" + of(20, 'd') + "',mark='" + of(154, 'm') + "' where id='9';"},
        {"lowest id", Record(size).number(0, lowest).text(154, "low").bytes(),
         "insert into smartqos_whitelist(devmac,mark) values('low','');",
         "update smartqos_whitelist set devmac='low',mark='' where id='-2147483648';"},
        {"highest id", Record(size).number(0, highest).text(174, "high").bytes(),
         "insert into smartqos_whitelist(devmac,mark) values('','high');",
         "update smartqos_whitelist set devmac='',mark='high' where id='2147483647';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(154, "%s%d'").text(174, "电视机 it's").bytes(),
         "insert into smartqos_whitelist(devmac,mark) values('%s%d'','电视机 it's');",
         "update smartqos_whitelist set devmac='%s%d'',mark='电视机 it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove = [](int id, const char *statement) {
        return Operation{
            "smartqos_whitelist delete " + std::to_string(id), [id] { DelSmartQosItem(id); }, {execute(7, statement)}};
    };
    return {
        remove(7, "delete from smartqos_whitelist where id='7';"),
        remove(0, "delete from smartqos_whitelist where id='0';"),
        remove(lowest, "delete from smartqos_whitelist where id='-2147483648';"),
        remove(highest, "delete from smartqos_whitelist where id='2147483647';"),
    };
}

std::vector<Built> built() {
    return {
        {"plain", "insert into smartqos_whitelist values(7,'00:11:22:AA:BB:CC','living room');",
         Record(size).number(0, 7).text(154, "00:11:22:AA:BB:CC").text(174, "living room").bytes()},
        {"NULL in every column", "insert into smartqos_whitelist values(8,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into smartqos_whitelist values(2147483647,'" + of(19, 'd') + "','" + of(153, 'm') + "');",
         Record(size).number(0, highest).text(154, of(19, 'd')).text(174, of(153, 'm')).bytes()},
        {"beyond its width is cut",
         "insert into smartqos_whitelist values(-2147483648,'" + of(500, 'd') + "','" + of(154, 'm') + "');",
         Record(size).number(0, lowest).text(154, of(19, 'd')).text(174, of(153, 'm')).bytes()},
        {"numbers where texts are expected", "insert into smartqos_whitelist values(8,-1,2.5);",
         Record(size).number(0, 8).text(154, "-1").text(174, "2.5").bytes()},
        {"Chinese and apostrophes", "insert into smartqos_whitelist values(8,'it''s','电视机');",
         Record(size).number(0, 8).text(154, "it's").text(174, "电视机").bytes()},
    };
}

}  // namespace

Golden smartqos_whitelist() {
    return {table(), samples(), others(), built()};
}

}  // namespace golden
