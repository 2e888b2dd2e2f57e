// URL filters and time groups: listed, added, edited, removed.
#include "web/rules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/service.h"

namespace {

using web::answer;
using web::failure;
using web::post;

using Rows = std::vector<std::string>;

constexpr char filters[] = "select * from filter_url order by Id;";
constexpr char groups[] = "select * from user_timegroup order by id;";

Rows rows(const char *query) {
    return support::Database().rows(query);
}

TEST(CgiRules, lists_filters_and_groups) {
    const support::Service service;
    EXPECT_EQ(answer("url-filters", ""), std::string(web::headers) + R"({"filters":[],"groups":[]})");
    support::execute(
        "insert into user_timegroup values(3,'Nights 夜',1,1,1,1,1,0,0,'20:30','23:59','early');"
        "insert into filter_url values(7,'No \"videos\"','a.example/\\',2,3,0,0,0,0,0,0,0,'','',1,'tab\there'),"
        "(8,'Own','b.example',1,0,0,0,0,0,0,1,1,'09:00','12:00',0,'');");
    const std::string group = web::version_of("groups", 3);
    const std::string first = web::version_of("filters", 7);
    const std::string second = web::version_of("filters", 8);
    const std::string expected =
        R"({"filters":[{"name":"No \"videos\"","url":"a.example/\\","days":"1111100","from":"20:30","to":"23:59",)"
        R"("mark":"tab\u0009here","status":1,"group":3,"id":7,"version":")" +
        first +
        R"("},{"name":"Own","url":"b.example","days":"0000011","from":"09:00","to":"12:00","mark":"","status":0,)"
        R"("group":0,"id":8,"version":")" +
        second +
        R"("}],"groups":[{"name":"Nights 夜","days":"1111100","from":"20:30","to":"23:59","mark":"early","id":3,)"
        R"("version":")" +
        group + R"("}]})";
    EXPECT_EQ(answer("url-filters", ""), web::headers + expected);
    EXPECT_EQ(answer("time-groups", ""), web::headers + expected);
    EXPECT_EQ(first.size(), 16U);
    EXPECT_NE(first, second);
}

TEST(CgiRules, adds_edits_and_removes_a_filter) {
    const support::Service service;
    post("time-groups", web::group_form);
    post("url-filters", web::filter_form);
    EXPECT_EQ(rows(filters), Rows{"1|No videos|video.example|1|0|1|1|1|1|1|0|0|20:30|23:59|1|"});
    const std::string edited = post("url-filters", "action=edit&" + web::row("filters", 1) +
                                                       "name=No+games&url=games.example&mark=why&status=0&group=1");
    EXPECT_EQ(rows(filters), Rows{"1|No games|games.example|2|1|0|0|0|0|0|0|0|||0|why"});
    EXPECT_EQ(edited, answer("url-filters", ""));
    EXPECT_NE(edited.find(R"("name":"No games")"), std::string::npos);
    const std::string removed = post("url-filters", "action=remove&" + web::row("filters", 1));
    EXPECT_EQ(removed, answer("url-filters", ""));
    EXPECT_EQ(rows(filters), Rows{});
}

TEST(CgiRules, adds_edits_and_removes_a_group) {
    const support::Service service;
    post("time-groups", web::group_form);
    EXPECT_EQ(rows(groups), Rows{"1|School nights|1|1|1|1|1|0|0|20:30|23:59|"});
    post("time-groups",
         "action=edit&" + web::row("groups", 1) + "name=Weekend&mark=late&days=0000011&from=22:00&to=23:59");
    EXPECT_EQ(rows(groups), Rows{"1|Weekend|0|0|0|0|0|1|1|22:00|23:59|late"});
    EXPECT_EQ(post("time-groups", "action=remove&" + web::row("groups", 1)),
              std::string(web::headers) + R"({"filters":[],"groups":[]})");
    EXPECT_EQ(rows(groups), Rows{});
}

// In the exact profile a value is SQL: what would end it is refused, and nothing else is.
TEST(CgiRules, keeps_every_value_a_value) {
    const support::Service service;
    post("url-filters",
         "action=add&name=%22%25s%22+--+%5C+%3B+%E8%A7%86&url=a.example/%25s%3Fb%3Dselect&mark=select+1%3B&status=1&"
         "days=1000000&from=00:00&to=00:01");
    EXPECT_EQ(rows("select name, url, mark from filter_url;"),
              Rows{R"("%s" -- \ ; 视|a.example/%s?b=select|select 1;)"});
    EXPECT_EQ(
        post("url-filters", "action=edit&" + web::row("filters", 1) +
                                "name=x%27,status=0,mark=%27&url=b.example&status=1&days=1000000&from=00:00&to=00:01"),
        failure("400 Bad Request", "name: a text that fits, without apostrophes"));
    EXPECT_EQ(rows("select count(*), min(status) from filter_url;"), Rows{"1|1"});
}

TEST(CgiRules, takes_texts_as_wide_as_their_places) {
    const support::Service service;
    std::string name = "ab";
    for (int i = 0; i < 49; ++i) {
        name += "%E8%A7%86";
    }
    post("url-filters", "action=add&name=" + name + "&url=" + std::string(1029, 'u') +
                            "&mark=" + std::string(151, 'm') + "&status=1&days=1000000&from=00:00&to=00:01");
    EXPECT_EQ(rows("select length(cast(name as blob)), length(url), length(mark) from filter_url;"),
              Rows{"149|1029|151"});
    post("time-groups", "action=add&name=" + std::string(151, 'n') + "&mark=" + std::string(151, 'm') +
                            "&days=1000000&from=00:00&to=00:01");
    EXPECT_EQ(rows("select length(name), length(mark) from user_timegroup;"), Rows{"151|151"});
}

TEST(CgiRules, changes_no_row_that_is_not_what_the_page_showed) {
    const support::Service service;
    post("url-filters", web::filter_form);
    const std::string edit =
        "action=edit&" + web::row("filters", 1) + "name=Mine&url=a.example&status=1&days=1000000&from=00:00&to=00:01";
    const std::string removal = "action=remove&" + web::row("filters", 1);
    support::execute("update filter_url set mark='theirs';");
    EXPECT_EQ(post("url-filters", edit), failure("409 Conflict", "row: changed meanwhile"));
    EXPECT_EQ(post("url-filters", removal), failure("409 Conflict", "row: changed meanwhile"));
    EXPECT_EQ(rows("select name, mark from filter_url;"), Rows{"No videos|theirs"});
    support::execute("delete from filter_url;");
    EXPECT_EQ(post("url-filters", edit), failure("409 Conflict", "row: gone"));
    EXPECT_EQ(post("time-groups", "action=remove&id=1&version=0123456789abcdef"), failure("409 Conflict", "row: gone"));
}

TEST(CgiRules, says_when_what_it_reads_back_is_not_what_was_sent) {
    const support::Service service;
    support::execute(
        "create trigger meddler after insert on filter_url begin update filter_url set mark='x'; end;"
        "create trigger keeper before delete on filter_url begin select raise(ignore); end;");
    EXPECT_EQ(post("url-filters", web::filter_form), failure("500 Internal Server Error", "row: not stored as sent"));
    EXPECT_EQ(post("url-filters", "action=remove&" + web::row("filters", 1)),
              failure("500 Internal Server Error", "row: not stored as sent"));
}

TEST(CgiRules, adds_no_row_behind_the_128th) {
    const support::Service service;
    support::execute(
        "with recursive numbers(n) as (select 1 union all select n + 1 from numbers where n < 128)"
        "insert into filter_url(name,url,timecontrol) select n,'a.example',1 from numbers;");
    EXPECT_EQ(post("url-filters", web::filter_form), failure("409 Conflict", "rows: no more fit"));
    EXPECT_EQ(rows("select count(*) from filter_url;"), Rows{"128"});
}

TEST(CgiRules, removes_no_group_that_rules_follow) {
    const support::Service service;
    post("time-groups", web::group_form);
    const std::string removal = "action=remove&" + web::row("groups", 1);
    for (const char *table : {"filter_url", "filter_mac", "filter_ipport", "qos_rule", "behavior_rule"}) {
        support::execute(std::string("insert into ") + table + "(timecontrol,timegroup_id) values(2,1);");
        EXPECT_EQ(post("time-groups", removal), failure("409 Conflict", "group: in use")) << table;
        support::execute(std::string("update ") + table + " set timecontrol=1;");
    }
    EXPECT_EQ(post("time-groups", removal).find("Status:"), std::string::npos);
    EXPECT_EQ(rows(groups), Rows{});
}

TEST(CgiRules, says_that_the_service_is_away) {
    EXPECT_EQ(answer("url-filters", ""), failure("503 Service Unavailable", "service: away"));
    EXPECT_EQ(post("url-filters", web::filter_form), failure("503 Service Unavailable", "service: away"));
}

TEST(CgiRules, says_that_the_service_could_not_do_it) {
    const support::Service service;
    support::execute("drop table user_timegroup;");
    EXPECT_EQ(answer("url-filters", ""), failure("503 Service Unavailable", "service: failed"));
}

TEST(CgiRules, says_that_the_service_is_slow_when_the_database_is_busy) {
    const support::Service service;
    const support::Database other;
    other.execute("begin exclusive;");
    EXPECT_EQ(answer("url-filters", ""), failure("503 Service Unavailable", "service: slow"));
}

}  // namespace
