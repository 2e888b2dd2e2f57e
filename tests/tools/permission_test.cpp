// What requests may do, and what is refused.
#include <gtest/gtest.h>

#include "support/database.h"
#include "support/peer.h"
#include "support/record.h"
#include "support/service.h"

namespace {

using support::exchange;
using support::request;
using support::words;

constexpr unsigned groups_table = 5;

class Permission : public testing::Test {
protected:
    Permission() { support::execute("insert into user_timegroup(id,name) values(1,'group');"); }

    static std::string names() { return support::value("select group_concat(name) from user_timegroup;"); }

    static std::string tables() { return support::value("select count(*) from sqlite_master;"); }

    static bool file_was_made() { return support::file_exists("/var/made.db"); }
};

TEST_F(Permission, to_query_is_to_read_with_one_statement) {
    const support::Service service;
    const std::string tables_before = tables();
    for (const char *text :
         {"delete from user_timegroup;", "insert into user_timegroup(name) values('a') returning name;",
          "update user_timegroup set name='a';", "drop table user_timegroup;", "create table made(a);",
          "attach '/var/made.db' as made;", "attach char(47)||'var/made.db' as made;", "vacuum into '/var/made.db';",
          "vacuum;", "pragma user_version;", "pragma journal_mode=wal;", "begin;", "detach main;",
          "select 1; delete from user_timegroup;", "select 1; select 2;", "select 1; nonsense",
          "/* a comment */ vacuum into '/var/made.db';", "analyze;", "savepoint a;"}) {
        EXPECT_EQ(exchange(request(100, 1, text)), "") << text;
        EXPECT_EQ(exchange(request(groups_table, 1, text)), "") << text;
    }
    EXPECT_EQ(names(), "group");
    EXPECT_EQ(tables(), tables_before);
    EXPECT_FALSE(file_was_made());
    for (const char *text : {"select name from user_timegroup", "select name from user_timegroup; -- and no more",
                             "with a as (select 'group') select * from a;", "values('group');"}) {
        EXPECT_EQ(exchange(request(100, 1, text)), words({100, 1, 6}) + std::string("group\0", 6)) << text;
    }
}

TEST_F(Permission, to_execute_is_to_change_rows) {
    const support::Service service;
    const std::string tables_before = tables();
    for (const char *text :
         {"attach '/var/made.db' as made;", "vacuum into '/var/made.db';", "VACUUM/**/main INTO '/var/made.db';",
          "insert into user_timegroup(name) values('a'); vacuum into '/var/made.db';", "drop table user_timegroup;",
          "create table made(a);", "create temp table made(a);", "alter table user_timegroup add made;",
          "create trigger made after delete on user_timegroup begin select 1; end;", "pragma journal_mode=wal;",
          "pragma writable_schema=1; update sqlite_master set sql='';", "pragma user_version=7;"}) {
        EXPECT_EQ(exchange(request(groups_table, 2, text)), "") << text;
    }
    EXPECT_EQ(names(), "group");
    EXPECT_EQ(tables(), tables_before);
    EXPECT_EQ(support::value("pragma user_version;"), "0");
    EXPECT_FALSE(file_was_made());
    for (const char *text :
         {"insert into user_timegroup(name) values('vacuum into');", "vacuum;", "pragma foreign_keys=1; select 1;",
          "begin; delete from user_timegroup where name='group'; commit;", "savepoint a; release a;", "select 1;",
          ""}) {
        EXPECT_EQ(exchange(request(groups_table, 2, text)), words({groups_table, 2, 0})) << text;
    }
    EXPECT_EQ(names(), "vacuum into");
}

TEST_F(Permission, to_change_the_schema_is_given_at_the_start) {
    const support::Service service({"--allow-schema"});
    for (const char *text : {"attach '/var/made.db' as made;", "detach main;", "vacuum into '/var/made.db';",
                             "pragma writable_schema=1; update sqlite_master set sql='';"}) {
        EXPECT_EQ(exchange(request(groups_table, 2, text)), "") << text;
    }
    EXPECT_FALSE(file_was_made());
    EXPECT_EQ(exchange(request(groups_table, 2, "create table made(a); insert into made values(7);")),
              words({groups_table, 2, 0}));
    EXPECT_EQ(support::value("select a from made;"), "7");
    EXPECT_EQ(exchange(request(groups_table, 1, "drop table made;")), "");
}

}  // namespace
