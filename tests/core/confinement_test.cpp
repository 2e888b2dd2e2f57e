// What texts may do on a connection, where texts are confined, and what they always could where they are not.
#include <gtest/gtest.h>

#include <cerrno>

#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/streams.h"

namespace {

using support::build_profile;

constexpr bool confined = build_profile.confines_texts;
constexpr char foreign_file[] = "/var/foreign.db";

/// The results of a text in the function that executes and in one that reads.
struct Results {
    int executed;
    int counted;
};

Results run(const char *sql) {
    Results results{};
    support::streams_of([&] { results = {DB_EXEC_SQL_CHAR(sql), GET_DB_SQL_INT(sql)}; });
    return results;
}

TEST(Confinement, a_text_attaches_no_file_with_a_name) {
    const int refused = confined ? -1 : 0;
    EXPECT_EQ(run("attach '/var/foreign.db' as other; create table other.t(a);").executed, refused);
    EXPECT_EQ(support::file_exists(foreign_file), !confined);
    EXPECT_EQ(run("attach '/var/'||'foreign.db' as other;").executed, refused);
    EXPECT_EQ(run("attach ':memory:' as other;").executed, refused);
    EXPECT_EQ(run("attach '' as other;").executed, 0);
}

TEST(Confinement, a_refused_text_says_so) {
    errno = 0;
    const auto streams = support::streams_of([] { DB_EXEC_SQL_CHAR("attach '/var/foreign.db' as other;"); });
    EXPECT_EQ(errno, confined ? EINVAL : errno);
    EXPECT_EQ(streams.output, confined ? "cannot exec sql cmdline, Error: not authorized\n" : "");
}

TEST(Confinement, vacuum_works_and_vacuum_into_a_file_does_not) {
    support::streams_of([] {
        EXPECT_EQ(DbSqlExec(std::string("vacuum;").data()), 0);
        EXPECT_EQ(DbSqlExec(std::string("vacuum into '/var/foreign.db';").data()), confined ? -1 : 0);
    });
    EXPECT_EQ(support::file_exists(foreign_file), !confined);
}

TEST(Confinement, the_schema_is_not_edited_directly) {
    const char sql[] = "pragma writable_schema=on; update sqlite_master set sql=sql where name='DevInfo';";
    EXPECT_EQ(run(sql).executed, confined ? -1 : 0);
}

TEST(Confinement, a_list_builder_attaches_nothing) {
    static UrlFilterItemList list;
    support::streams_of([] { GetUrlFilterItemListInServer(&list, "attach '/var/foreign.db' as other;"); });
    EXPECT_EQ(support::file_exists(foreign_file), !confined);
}

TEST(Confinement, a_view_in_place_of_a_table_is_not_run_by_the_librarys_own_readings) {
    support::execute(
        "alter table DevInfo rename to Hidden; create view DevInfo as select * from Hidden;"
        "insert into Hidden(Dev_Sn,Dev_MAC,Dev_Status) values(7,'06','1');");
    support::streams_of([] {
        static DevInfo record;
        EXPECT_EQ(DB_getinfo(&record, 7, 0), confined ? 0 : 1);
        EXPECT_EQ(get_devinfo_count(), confined ? 0 : 1);
        EXPECT_EQ(GET_DB_SQL_INT("select * from DevInfo;"), 1) << "callers name what they want";
    });
}

TEST(Confinement, the_schema_of_a_file_calls_no_dangerous_function) {
    support::execute("create view Sent as select load_extension('/var/foreign.so') as a;");
    errno = 0;
    support::streams_of([] { GET_DB_SQL_INT("select * from Sent;"); });
    EXPECT_FALSE(support::file_exists("/var/foreign.so"));
}

TEST(Confinement, a_table_that_is_counted_is_one) {
    support::execute("insert into DevInfo(Dev_Sn) values(1),(2);");
    const bool checked = build_profile.checks_conditions;
    support::streams_of([&] {
        EXPECT_EQ(GetTableCount("DevInfo"), 2);
        EXPECT_EQ(GetTableCount("devinfo"), 2);
        EXPECT_EQ(GetTableCount("DevInfo where Dev_Sn=1"), checked ? 0 : 1);
        EXPECT_EQ(GetTableCount("DevInfo a,DevInfo b"), checked ? 0 : 4);
        EXPECT_EQ(GetTableCount("\"; delete from DevInfo; --"), 0);
        EXPECT_EQ(GetTableCount("DevInfo"), 2);
    });
}

}  // namespace
