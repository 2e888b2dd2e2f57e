#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 480;

/// One of the three tables. They are alike.
struct Acl {
    int number;
    std::string table;
    std::uint32_t id;
    int (*build)(AclItemList *list, const char *sql);
    std::string (*row)(int n);
};

std::string values(int n) {
    const std::string number = std::to_string(n);
    return " values(" + number + ",'手机" + numbered(293, 'n', n) + "','" + numbered(19, 'a', n) + "',-" + number +
           ",'" + numbered(151, 'm', n) + "');";
}

const Acl acls[] = {
    {0, "wifi0acl", 15, Get2GAclItemListInServer, [](int n) { return "insert into wifi0acl" + values(n); }},
    {1, "wifi1acl", 16, Get5GAclItemListInServer, [](int n) { return "insert into wifi1acl" + values(n); }},
    {2, "wifi2acl", 17, Get2GAclItemListInServer, [](int n) { return "insert into wifi2acl" + values(n); }},
};

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, "手机" + numbered(293, 'n', n))
        .text(304, numbered(19, 'a', n))
        .text(324, numbered(151, 'm', n))
        .number(476, -n)
        .bytes();
}

Table table(const Acl &acl) {
    Table table{acl.table, acl.id, size, 61444};
    const int number = acl.number;
    table.list = [number](Pointer list) { GetAclItemList(list, number); };
    table.get = [number](int id, Pointer item) { GetAclItem(id, item, number); };
    table.add = [number](Pointer item) { AddAclItem(item, number); };
    table.modify = [number](Pointer item) { ModifyAclItem(item, number); };
    table.remove = [number](const char *condition) { DelAclItem(condition, number); };
    table.build = acl.build;
    table.row = acl.row;
    table.record = record;
    table.list_query = "select * from " + acl.table + " order by id;";
    table.get_query = "select * from " + acl.table + " where id='7';";
    table.lowest_query = "select * from " + acl.table + " where id='-2147483648';";
    table.remove_until_condition = "delete from " + acl.table + " where ";
    return table;
}

std::vector<Sample> samples(const Acl &acl) {
    const std::string insert = "insert into " + acl.table + "(name,mac,status,mark) values(";
    const std::string update = "update " + acl.table + " set ";
    return {
        // Every text has odd bytes behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "phone")
             .text(304, "00:11:22:AA:BB:CC")
             .text(324, "a guest")
             .number(476, 1)
             .bytes(),
         insert + "'phone','00:11:22:AA:BB:CC','1','a guest');",
         update + "name='phone',mac='00:11:22:AA:BB:CC',status='1',mark='a guest' where id='7';"},
        {"empty", Record(size).bytes(), insert + "'','','0','');",
         update + "name='',mac='',status='0',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(300, 'n'))
             .unterminated(304, of(20, 'a'))
             .unterminated(324, of(152, 'm'))
             .number(476, 1)
             .bytes(),
         insert + "'" + of(300, 'n') + "','" + of(20, 'a') + "','1','" + of(152, 'm') + "');",
         update + "name='" + of(300, 'n') + "',mac='" + of(20, 'a') + "',status='1',mark='" + of(152, 'm') +
             "' where id='9';"},
        {"utmost numbers", Record(size).number(0, lowest).number(476, highest).bytes(),
         insert + "'','','2147483647','');",
         update + "name='',mac='',status='2147483647',mark='' where id='-2147483648';"},
        {"utmost numbers the other way round", Record(size).number(0, highest).number(476, lowest).bytes(),
         insert + "'','','-2147483648','');",
         update + "name='',mac='',status='-2147483648',mark='' where id='2147483647';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "手机").text(304, "%s%d'").text(324, "it's").bytes(),
         insert + "'手机','%s%d'','0','it's');",
         update + "name='手机',mac='%s%d'',status='0',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others(const Acl &acl) {
    const int number = acl.number;
    const std::string by_mac = "delete from " + acl.table + " where mac='";
    return {
        {acl.table + " delete all",
         [number] { DelAclItemAll(number); },
         {execute(acl.id, "delete from " + acl.table + ";")}},
        {acl.table + " delete by MAC address",
         [number] { DelAclItemByMac("00:11:22:AA:BB:CC", number); },
         {execute(acl.id, by_mac + "00:11:22:AA:BB:CC';")}},
        {acl.table + " delete by an empty MAC address",
         [number] { DelAclItemByMac("", number); },
         {execute(acl.id, by_mac + "';")}},
        {acl.table + " delete by no MAC address",
         [number] { DelAclItemByMac(nullptr, number); },
         {execute(acl.id, by_mac + "';")}},
        {acl.table + " delete by a long MAC address with odd characters",
         [number] { DelAclItemByMac(("it's %s" + of(4000, 'a')).c_str(), number); },
         {execute(acl.id, by_mac + "it's %s" + of(4000, 'a') + "';")}},
    };
}

std::vector<Built> built(const Acl &acl) {
    const std::string insert = "insert into " + acl.table + " values(";
    return {
        {"plain", insert + "7,'phone','00:11:22:AA:BB:CC',1,'a guest');",
         Record(size)
             .number(0, 7)
             .text(4, "phone")
             .text(304, "00:11:22:AA:BB:CC")
             .text(324, "a guest")
             .number(476, 1)
             .bytes()},
        {"NULL in every column", insert + "8,null,null,null,null);", Record(size).number(0, 8).bytes()},
        {"full width",
         insert + "2147483647,'" + of(299, 'n') + "','" + of(19, 'a') + "',-2147483648,'" + of(151, 'm') + "');",
         Record(size)
             .number(0, highest)
             .text(4, of(299, 'n'))
             .text(304, of(19, 'a'))
             .text(324, of(151, 'm'))
             .number(476, lowest)
             .bytes()},
        {"beyond its width is cut",
         insert + "-2147483648,'" + of(300, 'n') + "','" + of(500, 'a') + "',2147483647,'" + of(152, 'm') + "');",
         Record(size)
             .number(0, lowest)
             .text(4, of(299, 'n'))
             .text(304, of(19, 'a'))
             .text(324, of(151, 'm'))
             .number(476, highest)
             .bytes()},
        {"a number stored as text", insert + "8,'','','1st','');", Record(size).number(0, 8).number(476, 1).bytes()},
        {"a text that is no number", insert + "8,'','','on','');", Record(size).number(0, 8).bytes()},
        {"Chinese and apostrophes", insert + "8,'手机','',0,'it''s');",
         Record(size).number(0, 8).text(4, "手机").text(324, "it's").bytes()},
    };
}

}  // namespace

Golden acl(int number) {
    const Acl &acl = acls[number];
    return {table(acl), samples(acl), others(acl), built(acl)};
}

}  // namespace golden
