// What the doctor says of databases, tables and disks.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>

#include "doctor.h"
#include "run.h"
#include "support/database.h"
#include "support/process.h"

namespace {

using support::backup_database;
using support::catalogue_database;
using support::doctor_line;
using support::doctor_lines;
using support::main_database;
using Lines = std::vector<std::string>;

constexpr char directory[] = "/etc/config/systemconf/database";

const std::string path = main_database;
const std::string mend_main =
    " -> \"routerdbctl db restore\" puts the backup in its place, \"routerdbctl db reset\" the factory's";
const std::string mend_tables =
    " -> \"routerdbctl db restore\" or \"routerdbctl db reset\" gets databases with the right tables";
const std::string not_looked_at = "not looked at -> mend what is said of main-database first";

/// That of every check which needs the main database.
void expect_no_other_look() {
    const Lines checks{"content", "rule-tables", "ap-tables",   "app-tables", "capacities", "access-points",
                       "groups",  "bindings",    "apostrophes", "json",       "utf-8"};
    const Lines lines = doctor_lines(checks, {"--timeout", "6", "doctor"});
    ASSERT_EQ(lines.size(), checks.size());
    for (std::size_t i = 0; i < checks.size(); ++i) {
        std::string line = "warn  " + checks[i];
        line.resize(21, ' ');
        EXPECT_EQ(lines[i], line + not_looked_at);
    }
}

TEST(DoctorMainDatabase, missing) {
    unlink(main_database);
    EXPECT_EQ(doctor_line("main-database"), "FAIL  main-database  " + path + ": No such file or directory" + mend_main);
    expect_no_other_look();
    EXPECT_FALSE(support::file_exists(main_database));
}

TEST(DoctorMainDatabase, empty) {
    support::write_file(main_database, "");
    EXPECT_EQ(doctor_line("main-database"), "FAIL  main-database  " + path + " is empty" + mend_main);
    expect_no_other_look();
    EXPECT_EQ(support::file_content(main_database), "");
}

TEST(DoctorMainDatabase, garbage) {
    support::write_file(main_database, std::string(5000, 'x'));
    EXPECT_EQ(doctor_line("main-database"), "FAIL  main-database  " + path + " is no database" + mend_main);
    expect_no_other_look();
}

TEST(DoctorMainDatabase, that_breaks_off) {
    support::write_file(main_database, support::file_content(main_database).substr(0, 50));
    EXPECT_EQ(doctor_line("main-database"), "FAIL  main-database  " + path + " is no database" + mend_main);
}

TEST(DoctorMainDatabase, that_is_a_pipe_keeps_nobody_waiting) {
    unlink(main_database);
    ASSERT_EQ(mkfifo(main_database, 0600), 0);
    EXPECT_EQ(doctor_line("main-database"), "FAIL  main-database  " + path + " is no file" + mend_main);
}

TEST(DoctorMainDatabase, that_this_user_may_not_read) {
    chmod(main_database, 0);
    EXPECT_EQ(doctor_line("main-database"),
              "FAIL  main-database  " + path + ": Permission denied -> try again as root");
    expect_no_other_look();
}

TEST(DoctorMainDatabase, open_to_everybody) {
    chmod(main_database, 0666);
    EXPECT_EQ(doctor_line("main-database"),
              "warn  main-database  " + path + " may be written by everybody -> \"chmod o-w\" it");
    chmod(main_database, 0644);
    chmod(directory, 0777);
    EXPECT_EQ(doctor_line("main-database"),
              std::string("warn  main-database  ") + directory + " may be written by everybody -> \"chmod o-w\" it");
}

TEST(DoctorMainDatabase, locked_by_somebody) {
    const support::Database other;
    other.execute("begin exclusive;");
    EXPECT_EQ(doctor_line("main-database", {"--timeout", "6", "doctor"}),
              "FAIL  main-database  " + path + " is locked -> end the program that has it; \"fuser\" names it");
    expect_no_other_look();
}

TEST(DoctorMainDatabase, with_a_write_ahead_log) {
    support::execute("pragma journal_mode=wal;");
    EXPECT_EQ(doctor_line("main-database"),
              "warn  main-database  " + path +
                  " has a write-ahead log, which the library does not expect; what is in it is not looked at -> "
                  "\"PRAGMA journal_mode=delete\" in sqlite3 takes it out of it");
    expect_no_other_look();
    EXPECT_FALSE(support::file_exists(path + "-shm"));
}

/// Leaves a change half way, with some of it in the file already.
void kill_a_writer() {
    support::Process writer([]() -> bool {
        const support::Database database;
        database.execute(
            "pragma cache_size=1; begin; with recursive n(i) as (values(1) union all select i+1 from n where i<2000)"
            " insert into user_urlinfo(name, url) select 'name', hex(zeroblob(50)) from n;");
        _exit(0);
    });
    ASSERT_EQ(writer.wait(), 0);
    ASSERT_TRUE(support::file_exists(path + "-journal"));
}

TEST(DoctorMainDatabase, half_changed_stays_as_it_is) {
    kill_a_writer();
    const std::string database = support::file_content(main_database);
    const std::string journal = support::file_content(path + "-journal");
    EXPECT_EQ(doctor_line("main-database"), "warn  main-database  a writer of " + path +
                                                " was killed, and what it had begun is not undone yet -> " +
                                                "whatever reads next undoes it, such as \"routerdbctl table list\"");
    expect_no_other_look();
    EXPECT_EQ(support::file_content(main_database), database);
    EXPECT_EQ(support::file_content(path + "-journal"), journal);
}

TEST(DoctorContent, damaged) {
    support::execute(
        "create table t(c); insert into t values(null); pragma writable_schema=1;"
        "update sqlite_master set sql='create table t(c not null)' where name='t';");
    EXPECT_EQ(doctor_line("content"), "FAIL  content        NULL value in t.c" + mend_main);
}

TEST(DoctorRuleTables, with_a_table_or_a_column_too_few) {
    support::execute("drop table filter_mac; alter table behavior_rule rename column devmac to other;");
    EXPECT_EQ(doctor_line("rule-tables"),
              "FAIL  rule-tables    there is no table filter_mac; behavior_rule has no column devmac" + mend_tables);
}

TEST(DoctorRuleTables, with_columns_in_other_places) {
    support::execute(
        "drop table domain_ip; create table domain_ip(id integer primary key, domain, name, ip, status, mark);"
        "drop table dhcpserverstaticbind; create table dhcpserverstaticbind(number, devtype, mac, ip);"
        "alter table user_timegroup rename column weekday3 to other;");
    EXPECT_EQ(
        doctor_line("rule-tables"),
        "FAIL  rule-tables    column 0 of dhcpserverstaticbind is number instead of id; "
        "dhcpserverstaticbind has no column 4, which should be mark; column 4 of user_timegroup is other instead of "
        "weekday3; column 1 of domain_ip is domain instead of name; column 2 of domain_ip is name instead of "
        "domain" +
            mend_tables);
}

TEST(DoctorRuleTables, with_more_columns_are_sound) {
    support::execute("alter table user_urlinfo add column other; alter table user_ipgroup rename column id to ID;");
    EXPECT_EQ(doctor_line("rule-tables"), "ok    rule-tables    all 16 are there, with each column in its place");
}

TEST(DoctorRuleTables, say_that_there_is_more_than_a_line_holds) {
    support::execute(
        "drop table qos_rule; create table qos_rule(id); drop table filter_ipport; create table filter_ipport(id);");
    const std::string line = doctor_line("rule-tables");
    EXPECT_LT(line.size(), 1000U);
    EXPECT_NE(line.find("; and more -> \"routerdbctl db restore\""), std::string::npos) << line;
}

TEST(DoctorRuleTables, whose_names_are_no_text_are_shown_all_the_same) {
    support::execute("alter table domain_ip rename column name to \"a\x1b[31m\xc3\x28\";");
    EXPECT_EQ(doctor_line("rule-tables"),
              "FAIL  rule-tables    column 1 of domain_ip is a?[31m?( instead of name" + mend_tables);
}

TEST(DoctorAccessPointTables, with_columns_in_other_places) {
    support::execute(
        "alter table DevInfo rename column Dev_Wlan8_Psk_Value to a; alter table DevInfo rename column "
        "Dev_Wlan_Channel_sec to b; alter table WlanGroupInfo rename column WlanGroup_Wlan_RevOption_sec to c; alter "
        "table WlanZeroCfgGroupInfo rename column WlanGroup_Wlan_Txpower_sec to d; drop table DevUpgradeInfo;");
    EXPECT_EQ(
        doctor_line("ap-tables"),
        "FAIL  ap-tables      column 111 of DevInfo is a instead of Dev_Wlan8_Psk_Value; column 132 of DevInfo is "
        "b instead of Dev_Wlan_Channel_sec; column 119 of WlanGroupInfo is c instead of "
        "WlanGroup_Wlan_RevOption_sec; column 125 of WlanZeroCfgGroupInfo is d instead of "
        "WlanGroup_Wlan_Txpower_sec; there is no table DevUpgradeInfo" +
            mend_tables);
}

TEST(DoctorApplicationTables, with_columns_in_other_places) {
    support::execute("alter table App_Info rename column Features to a;");
    support::Database(catalogue_database).execute("alter table App_Class rename column Name_En to b;");
    EXPECT_EQ(doctor_line("app-tables"),
              "FAIL  app-tables     column 4 of App_Info is a instead of Features; column 2 of App_Class is b instead "
              "of Name_En" +
                  mend_tables);
}

TEST(DoctorCatalogue, missing) {
    unlink(catalogue_database);
    EXPECT_EQ(doctor_lines({"catalogue", "app-tables"}),
              (Lines{"warn  app-tables     the catalogue is not looked at -> mend what is said of the catalogue first",
                     std::string("FAIL  catalogue      ") + catalogue_database +
                         ": No such file or directory -> install it again"}));
}

TEST(DoctorFactory, empty) {
    support::write_file(support::factory_database, "");
    EXPECT_EQ(doctor_line("factory"),
              std::string("FAIL  factory        ") + support::factory_database + " is empty -> install it again");
}

TEST(DoctorBackup, missing_old_or_garbage) {
    EXPECT_EQ(doctor_line("backup"), "warn  backup         there is none -> \"routerdbctl db backup\" makes one");
    umask(0022);
    ASSERT_EQ(support::run({"db", "backup"}).status, 0);
    const std::string sound = std::string("ok    backup         ") + backup_database + ": N bytes, owner " +
                              support::own_user() + ", mode 0644";
    EXPECT_EQ(doctor_line("backup"), sound);

    constexpr std::time_t week = std::time_t{7} * 24 * 60 * 60;
    const std::time_t now = std::time(nullptr);
    timespec times[2] = {{now, 0}, {now, 0}};
    utimensat(AT_FDCWD, main_database, times, 0);
    times[1].tv_sec = now - week + 1;
    utimensat(AT_FDCWD, backup_database, times, 0);
    EXPECT_EQ(doctor_line("backup"), sound);
    times[1].tv_sec = now - week;
    utimensat(AT_FDCWD, backup_database, times, 0);
    EXPECT_EQ(doctor_line("backup"), std::string("warn  backup         ") + backup_database +
                                         " is 7 days older than the main database -> \"routerdbctl db backup\" makes "
                                         "one");

    support::write_file(backup_database, std::string(5000, 'x'));
    EXPECT_EQ(doctor_line("backup"), std::string("FAIL  backup         ") + backup_database +
                                         " is no database -> \"routerdbctl db backup\" makes a new one, once the main "
                                         "database is sound");
}

/// Has the databases on another disk.
void move_databases_to(const std::string &disk) {
    ASSERT_EQ(rename(directory, "/etc/config/systemconf/before"), 0);
    ASSERT_EQ(symlink(disk.c_str(), directory), 0);
}

TEST(DoctorSpace, on_a_disk_that_nobody_can_write) {
    move_databases_to("/read-only");
    EXPECT_EQ(doctor_line("space"), std::string("FAIL  space          the disk of ") + directory +
                                        " is read-only -> mount it such that it can be written");
}

TEST(DoctorSpace, on_a_disk_that_is_nearly_full) {
    const std::string database = support::file_content(main_database);
    const auto size = static_cast<off_t>(database.size());
    move_databases_to("/small");
    support::write_file("/small/myrouter.db", database);
    constexpr off_t disk = 4L * 1024 * 1024;
    support::write_file("/small/other", std::string(static_cast<std::size_t>(disk - size - size * 3 / 2), 'x'));
    EXPECT_EQ(doctor_line("space"), std::string("warn  space          the disk of ") + directory +
                                        " has N KiB free, less than twice the database -> make room there");
    support::write_file("/small/more", std::string(static_cast<std::size_t>(size), 'x'));
    EXPECT_EQ(doctor_line("space"), std::string("FAIL  space          the disk of ") + directory +
                                        " has N KiB free, and the database has " + std::to_string(size / 1024) +
                                        " -> make room there");
}

}  // namespace
