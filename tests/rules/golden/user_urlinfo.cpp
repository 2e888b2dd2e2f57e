#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

namespace {

using support::Record;

constexpr std::size_t size = 820;

std::string row(int n) {
    return "insert into user_urlinfo values(" + std::to_string(n) + ",'网站" + numbered(143, 'n', n) + "','" +
           numbered(511, 'u', n) + "','" + numbered(153, 'm', n) + "');";
}

std::string record(int n) {
    return Record(size)
        .number(0, n)
        .text(4, "网站" + numbered(143, 'n', n))
        .text(154, numbered(511, 'u', n))
        .text(666, numbered(153, 'm', n))
        .bytes();
}

Table table() {
    Table table{"user_urlinfo", 8, size, 104964};
    table.list = GetUserUrlItemList;
    table.get = GetUserUrlItem;
    table.add = AddUserUrlItem;
    table.modify = ModifyUserUrlItem;
    table.remove_row = DelUserUrlItem;
    table.build = GetUserUrlItemListInServer;
    table.row = row;
    table.record = record;
    table.list_query = "select * from user_urlinfo order by id;";
    table.get_query = "select * from user_urlinfo where id='7';";
    table.lowest_query = "select * from user_urlinfo where id='-2147483648';";
    return table;
}

std::vector<Sample> samples() {
    return {
        // Every text has odd bytes behind its terminator.
        {"plain",
         Record(size, 'Z')
             .number(0, 7)
             .text(4, "news")
             .text(154, "news.example.com/a?b=c&d")
             .text(666, "every day")
             .bytes(),
         "insert into user_urlinfo(name,url,mark) values('news','news.example.com/a?b=c&d','every day');",
         "update user_urlinfo set name='news',url='news.example.com/a?b=c&d',mark='every day' where id='7';"},
        {"empty", Record(size).bytes(), "insert into user_urlinfo(name,url,mark) values('','','');",
         "update user_urlinfo set name='',url='',mark='' where id='0';"},
        {"filled to the last character",
         Record(size)
             .number(0, 9)
             .unterminated(4, of(150, 'n'))
             .unterminated(154, of(512, 'u'))
             .unterminated(666, of(154, 'm'))
             .bytes(),
         "insert into user_urlinfo(name,url,mark) values('" + of(150, 'n') + "','" + of(512, 'u') + "','" +
             of(154, 'm') + "');",
         "update user_urlinfo set name='" + of(150, 'n') + "',url='" + of(512, 'u') + "',mark='" + of(154, 'm') +
             "' where id='9';"},
        {"lowest id", Record(size).number(0, lowest).text(4, "low").bytes(),
         "insert into user_urlinfo(name,url,mark) values('low','','');",
         "update user_urlinfo set name='low',url='',mark='' where id='-2147483648';"},
        {"highest id", Record(size).number(0, highest).text(666, "high").bytes(),
         "insert into user_urlinfo(name,url,mark) values('','','high');",
         "update user_urlinfo set name='',url='',mark='high' where id='2147483647';"},
        {"Chinese, apostrophes and percent signs stay as they are",
         Record(size).number(0, 8).text(4, "新闻").text(154, "a'b%s%d.example.com").text(666, "it's").bytes(),
         "insert into user_urlinfo(name,url,mark) values('新闻','a'b%s%d.example.com','it's');",
         "update user_urlinfo set name='新闻',url='a'b%s%d.example.com',mark='it's' where id='8';"},
    };
}

std::vector<Operation> others() {
    const auto remove = [](int id, const char *statement) {
        return Operation{
            "user_urlinfo delete " + std::to_string(id), [id] { DelUserUrlItem(id); }, {execute(8, statement)}};
    };
    return {
        remove(7, "delete from user_urlinfo where id='7';"),
        remove(0, "delete from user_urlinfo where id='0';"),
        remove(lowest, "delete from user_urlinfo where id='-2147483648';"),
        remove(highest, "delete from user_urlinfo where id='2147483647';"),
    };
}

std::vector<Built> built() {
    return {
        {"plain", "insert into user_urlinfo values(7,'news','news.example.com/a?b=c&d','every day');",
         Record(size)
             .number(0, 7)
             .text(4, "news")
             .text(154, "news.example.com/a?b=c&d")
             .text(666, "every day")
             .bytes()},
        {"NULL in every column", "insert into user_urlinfo values(8,null,null,null);",
         Record(size).number(0, 8).bytes()},
        {"full width",
         "insert into user_urlinfo values(2147483647,'" + of(149, 'n') + "','" + of(511, 'u') + "','" + of(153, 'm') +
             "');",
         Record(size).number(0, highest).text(4, of(149, 'n')).text(154, of(511, 'u')).text(666, of(153, 'm')).bytes()},
        {"beyond its width is cut",
         "insert into user_urlinfo values(-2147483648,'" + of(150, 'n') + "','" + of(3000, 'u') + "','" + of(154, 'm') +
             "');",
         Record(size).number(0, lowest).text(4, of(149, 'n')).text(154, of(511, 'u')).text(666, of(153, 'm')).bytes()},
        {"numbers where texts are expected", "insert into user_urlinfo values(8,1,-2,3.5);",
         Record(size).number(0, 8).text(4, "1").text(154, "-2").text(666, "3.5").bytes()},
        {"Chinese and apostrophes", "insert into user_urlinfo values(8,'新闻','a''b.example.com','it''s');",
         Record(size).number(0, 8).text(4, "新闻").text(154, "a'b.example.com").text(666, "it's").bytes()},
    };
}

}  // namespace

Golden user_urlinfo() {
    return {table(), samples(), others(), built()};
}

}  // namespace golden
