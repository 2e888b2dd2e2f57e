#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 352;

std::string row(int n) {
    const std::string number = std::to_string(n);
    return "insert into dhcpserverstaticbind values(" + number + "," + number + ",'" + numbered(19, 'a', n) + "','" +
           numbered(19, 'i', n) + "','绑定" + numbered(145, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .number(156, n)
        .text(160, numbered(19, 'a', n))
        .text(180, numbered(19, 'i', n))
        .text(200, "绑定" + numbered(145, 'm', n))
        .bytes();
}

Table table() {
    Table table{"dhcpserverstaticbind", 1, size, 45060};
    table.list = GetDhcpStaticItemList;
    table.get = GetDhcpStaticItem;
    table.add = AddDhcpStaticItem;
    table.modify = ModifyDhcpStaticItem;
    table.add_requests = 3;
    table.modify_requests = 5;
    table.remove = DelDhcpStaticItem;
    table.build = GetDhcpStaticItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from dhcpserverstaticbind order by id;";
    table.get_query = "select * from dhcpserverstaticbind where id='7';";
    table.lowest_query = "select * from dhcpserverstaticbind where id='-2147483648';";
    table.remove_until_condition = "delete from dhcpserverstaticbind where ";
    table.without_lock_file = {"", "cannot open /var/databaselock!\n"};
    table.without_database = {"", "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n"};
    table.without_table = {"cannot prepare sql cmdline, Error: no such table: nowhere\n", ""};
    return table;
}

/// A sample with the questions for its two addresses, all of them answered with nothing.
Sample sample(const char *name, const Record &record, const std::string &ip, const std::string &mac,
              const std::string &insert, const std::string &update) {
    const std::string ip_count = query(100, "select count(*) from dhcpserverstaticbind where ip='" + ip + "';");
    const std::string ip_owner = query(100, "select id from dhcpserverstaticbind where ip='" + ip + "';");
    const std::string mac_count = query(100, "select count(*) from dhcpserverstaticbind where mac='" + mac + "';");
    const std::string mac_owner = query(100, "select id from dhcpserverstaticbind where mac='" + mac + "';");
    return {name, record.bytes(), insert, update, {ip_count, mac_count}, {ip_count, ip_owner, mac_count, mac_owner}};
}

std::vector<Sample> samples() {
    return {
        // The reserved area has odd bytes, and so has every text behind its terminator.
        sample("plain",
               Record(size, 'Z')
                   .number(0, 7)
                   .number(156, 2)
                   .text(160, "00:11:22:33:44:55")
                   .text(180, "192.168.1.20")
                   .text(200, "printer"),
               "192.168.1.20", "00:11:22:33:44:55",
               "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('2','00:11:22:33:44:55','192.168.1.20',"
               "'printer');",
               "update dhcpserverstaticbind set devtype='2',mac='00:11:22:33:44:55',ip='192.168.1.20',mark='printer' "
               "where id='7';"),
        sample("empty", Record(size), "", "",
               "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('0','','','');",
               "update dhcpserverstaticbind set devtype='0',mac='',ip='',mark='' where id='0';"),
        sample("filled to the last character",
               Record(size, 'Z')
                   .numbers(0, {9})
                   .number(156, 1)
                   .unterminated(160, of(20, 'a'))
                   .unterminated(180, of(20, 'i'))
                   .unterminated(200, of(152, 'm')),
               of(20, 'i'), of(20, 'a'),
               "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('1','" + of(20, 'a') + "','" +
                   of(20, 'i') + "','" + of(152, 'm') + "');",
               "update dhcpserverstaticbind set devtype='1',mac='" + of(20, 'a') + "',ip='" + of(20, 'i') + "',mark='" +
                   of(152, 'm') + "' where id='9';"),
        sample("utmost numbers", Record(size).number(0, lowest).number(156, highest), "", "",
               "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('2147483647','','','');",
               "update dhcpserverstaticbind set devtype='2147483647',mac='',ip='',mark='' where id='-2147483648';"),
        sample("the lowest number", Record(size).number(0, highest).number(156, lowest), "", "",
               "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('-2147483648','','','');",
               "update dhcpserverstaticbind set devtype='-2147483648',mac='',ip='',mark='' where id='2147483647';"),
        sample("Chinese, apostrophes and percent signs stay as they are",
               Record(size).number(0, 8).text(160, "a'b").text(180, "%s%d").text(200, "打印机 it's"), "%s%d", "a'b",
               "insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('0','a'b','%s%d','打印机 it's');",
               "update dhcpserverstaticbind set devtype='0',mac='a'b',ip='%s%d',mark='打印机 it's' where id='8';"),
    };
}

std::vector<Built> built() {
    return {
        {"plain", "insert into dhcpserverstaticbind values(7,2,'00:11:22:33:44:55','192.168.1.20','printer');",
         Record(size)
             .number(0, 7)
             .number(156, 2)
             .text(160, "00:11:22:33:44:55")
             .text(180, "192.168.1.20")
             .text(200, "printer")
             .bytes()},
        {"NULL in every column", "insert into dhcpserverstaticbind values(8,null,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into dhcpserverstaticbind values(2147483647,-2147483648,'" + of(19, 'a') + "','" + of(19, 'i') +
             "','" + of(151, 'm') + "');",
         Record(size)
             .number(0, highest)
             .number(156, lowest)
             .text(160, of(19, 'a'))
             .text(180, of(19, 'i'))
             .text(200, of(151, 'm'))
             .bytes()},
        {"beyond its width is cut",
         "insert into dhcpserverstaticbind values(-8,2147483647,'" + of(20, 'a') + "','" + of(500, 'i') + "','" +
             of(152, 'm') + "');",
         Record(size)
             .number(0, -8)
             .number(156, highest)
             .text(160, of(19, 'a'))
             .text(180, of(19, 'i'))
             .text(200, of(151, 'm'))
             .bytes()},
        {"number stored as text", "insert into dhcpserverstaticbind values(8,'2nd','','','');",
         Record(size).number(0, 8).number(156, 2).bytes()},
        {"Chinese and apostrophes", "insert into dhcpserverstaticbind values(8,0,'a''b','','打印机 it''s');",
         Record(size).number(0, 8).text(160, "a'b").text(200, "打印机 it's").bytes()},
    };
}

}  // namespace

Golden dhcpserverstaticbind() {
    return {table(), samples(), {}, built()};
}

}  // namespace golden
