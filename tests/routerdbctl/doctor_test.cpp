// The doctor as a whole.
#include "doctor.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "run.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/service.h"

namespace {

using support::run;

const std::string profile = support::build_profile.spares ? "modern" : "exact";

/// What of a fresh router is not as it should be.
void make_sound() {
    chmod(support::lock_file, 0660);
    ASSERT_EQ(run({"db", "backup"}).status, 0);
}

std::string sound_output(const std::string &service) {
    const std::string file = ": N bytes, owner " + support::own_user() + ", mode 0644\n";
    return std::string("ok    main-database  ") + support::main_database + file +
           "ok    content        SQLite finds it sound\n"
           "ok    rule-tables    all 16 are there, with each column in its place\n"
           "ok    ap-tables      all are there, with each column in its place\n"
           "ok    app-tables     App_Info and App_Class are there, with each column in its place\n"
           "ok    catalogue      " +
           support::catalogue_database + file + "ok    factory        " + support::factory_database + file +
           "ok    backup         " + support::backup_database + file +
           "ok    space          /etc/config/systemconf/database: N KiB free; /var/tmpconfig/database: N KiB free\n"
           "ok    lock-file      /var/databaselock: owner " +
           support::own_user() + ", mode 0660\n" + "ok    lock           nobody holds it\n" + service +
           "ok    capacities     the fullest table has 0 of 128 rows\n"
           "ok    access-points  0 of 20\n"
           "ok    groups         each one that is referred to is there\n"
           "ok    bindings       no device and no address is bound twice\n"
           "ok    apostrophes    none that harms\n"
           "ok    json           none that harms\n"
           "ok    utf-8          none that harms\n"
           "ok    library        " +
           profile + " " ROUTERDB_VERSION ", as routerdbctl\n" +
           "ok    programs       those that the library runs are there\n"
           "ok    converter      GB2312 and UTF-8 are converted\n";
}

/// A umask for which the library's backup has the mode of what it copies.
class Doctor : public testing::Test {
protected:
    void SetUp() override { umask(0022); }
};

TEST_F(Doctor, finds_a_sound_router_sound) {
    make_sound();
    const support::Service service;
    const support::Result result = run({"doctor"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(support::without_sizes(result.output),
              sound_output("ok    service        answers; " + support::named(service.id()) + "\n"));
    EXPECT_EQ(result.error, "");
}

TEST_F(Doctor, fails_when_a_check_does) {
    make_sound();
    const support::Result result = run({"doctor"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(support::without_sizes(result.output),
              sound_output("FAIL  service        there is no socket /var/sqlserver_socket -> "
                           "start routerdb-sqld; the system log says why it has ended\n"));
    EXPECT_EQ(result.error, "");
}

TEST_F(Doctor, does_not_fail_for_what_is_doubtful) {
    const support::Service service;
    const support::Result result = run({"doctor"});
    EXPECT_NE(result.output.find("warn  backup         there is none"), std::string::npos);
    EXPECT_EQ(result.status, 0);
}

TEST_F(Doctor, writes_json_for_bug_reports) {
    const support::Result result = run({"doctor", "--json"});
    EXPECT_EQ(result.status, 1);
    const std::vector<std::string> lines = support::lines_of(result.output);
    ASSERT_EQ(lines.size(), 24U);
    EXPECT_EQ(lines[0], "[");
    EXPECT_EQ(lines[2],
              "  {\"check\":\"content\",\"state\":\"ok\",\"found\":\"SQLite finds it sound\",\"advice\":\"\"},");
    EXPECT_EQ(lines[8],
              "  {\"check\":\"backup\",\"state\":\"warn\",\"found\":\"there is none\",\"advice\":"
              "\"\\\"routerdbctl db backup\\\" makes one\"},");
    EXPECT_EQ(lines[12],
              "  {\"check\":\"service\",\"state\":\"FAIL\",\"found\":\"there is no socket /var/sqlserver_socket\","
              "\"advice\":\"start routerdb-sqld; the system log says why it has ended\"},");
    EXPECT_EQ(
        lines[22],
        "  {\"check\":\"converter\",\"state\":\"ok\",\"found\":\"GB2312 and UTF-8 are converted\",\"advice\":\"\"}");
    EXPECT_EQ(lines[23], "]");
    EXPECT_EQ(run({"-o", "json", "doctor"}).output, result.output);
}

TEST_F(Doctor, writes_lines_for_programs) {
    const std::vector<std::string> lines = support::lines_of(run({"-o", "tsv", "doctor"}).output);
    ASSERT_EQ(lines.size(), 23U);
    EXPECT_EQ(lines[0], "check\tstate\tfound\tadvice");
    EXPECT_EQ(lines[14], "access-points\tok\t0 of 20\t");
}

TEST_F(Doctor, says_in_colours_how_things_are) {
    const std::string output = run({"--color", "always", "doctor"}).output;
    EXPECT_NE(output.find("\033[32mok  \033[0m  content        SQLite finds it sound\n"), std::string::npos);
    EXPECT_NE(output.find("\033[33mwarn\033[0m  backup         there is none"), std::string::npos);
    EXPECT_NE(output.find("\033[31mFAIL\033[0m  service        there is no socket"), std::string::npos);
}

TEST_F(Doctor, tells_no_key) {
    support::execute(
        "insert into DevInfo(Dev_Sn, Dev_Wlan1_Psk_Value, Dev_Wlan1_Wep_Value) "
        "values(7, 'open''sesame\"' || cast(x'ff' as text), 'open''sesame');"
        "insert into WlanGroupInfo(WlanGroup_Id, WlanGroup_Wlan1_Psk_Value) values(1, 'open''sesame\"');");
    for (const char *option : {"--json", "--color=never"}) {
        const std::string output = run({"doctor", option}).output;
        EXPECT_EQ(output.find("sesame"), std::string::npos) << output;
    }
}

}  // namespace
