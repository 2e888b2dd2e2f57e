// What DbSqlExec has beyond other functions that run one statement: several statements, and the background copy.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "core/holdings.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char copy_command[] =
    "system cp -f /etc/config/systemconf/database/myrouter.db /etc/config/systemconf/database/myrouter.db "
    ">/dev/null 2>&1 &";

int execute(const char *sql) {
    return DbSqlExec(const_cast<char *>(sql));  // only read
}

/// The commands that a statement leaves behind, of which none is run.
Lines commands_after(const char *sql, int expected_result) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    support::streams_of([&] { EXPECT_EQ(execute(sql), expected_result); });
    return recorder.calls({"system"});
}

TEST(DbSqlExec, executes_under_the_lock_and_copies_the_file_after_releasing_it) {
    Recorder recorder;
    Holdings holdings(recorder);
    ASSERT_EQ(execute("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(recorder.calls(), (Lines{
                                    "open lock file",
                                    "draw",
                                    "lock",
                                    "sqlite3_open /etc/config/systemconf/database/myrouter.db",
                                    "sqlite3_exec insert into user_urlinfo(name) values('a');",
                                    "sqlite3_free",
                                    "sqlite3_close",
                                    "unlock",
                                    "close lock file",
                                    copy_command,
                                }));
    EXPECT_EQ(holdings.changes(),
              (Lines{"sqlite3_open /etc/config/systemconf/database/myrouter.db: lock", "close lock file: nothing"}));
    EXPECT_EQ(support::value("select count(*) from user_urlinfo"), "1");
}

TEST(DbSqlExec, executes_every_statement_of_its_text) {
    ASSERT_EQ(execute("insert into user_urlinfo(name) values('a'); select name from user_urlinfo;"
                      "insert into user_urlinfo(name) values('b');"),
              0);
    EXPECT_EQ(support::Database().rows("select name from user_urlinfo order by id;"), (Lines{"a", "b"}));
}

TEST(DbSqlExec, keeps_what_stands_before_a_failing_statement) {
    support::streams_of([] {
        EXPECT_EQ(execute("insert into user_urlinfo(name) values('a'); nonsense;"
                          "insert into user_urlinfo(name) values('b');"),
                  -1);
    });
    EXPECT_EQ(support::Database().rows("select name from user_urlinfo;"), Lines{"a"});
}

TEST(DbSqlExec, repeats_its_text_while_the_database_is_busy) {
    Recorder recorder;
    recorder.answer("draw", {0});
    recorder.answer("sqlite3_exec", {SQLITE_BUSY, SQLITE_LOCKED});
    constexpr char sql[] = "delete from user_urlinfo;";
    EXPECT_EQ(execute(sql), 0);
    const std::string attempt = std::string("sqlite3_exec ") + sql;
    EXPECT_EQ(
        recorder.calls({"sqlite3_exec", "sqlite3_free", "usleep"}),
        (Lines{attempt, "sqlite3_free", "usleep 56", attempt, "sqlite3_free", "usleep 61", attempt, "sqlite3_free"}));
}

/// SQL function busy_once(): SQLITE_BUSY at its first call.
void busy_once(sqlite3_context *context, int /*count*/, sqlite3_value ** /*arguments*/) {
    static bool called = false;
    if (!std::exchange(called, true)) {
        sqlite3_result_error_code(context, SQLITE_BUSY);
    }
}

int add_busy_once(sqlite3 *db, const char ** /*message*/, const void * /*routines*/) {
    return sqlite3_create_function(db, "busy_once", 0, SQLITE_UTF8, nullptr, busy_once, nullptr, nullptr);
}

TEST(DbSqlExec, applies_what_went_through_before_a_busy_statement_again_unless_it_goes_on_with_that) {
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(add_busy_once));
    EXPECT_EQ(execute("insert into user_urlinfo(name) values('a'); select busy_once();"), 0);
    sqlite3_reset_auto_extension();
    EXPECT_EQ(support::Database().rows("select name from user_urlinfo;"),
              support::build_profile.resumes_texts ? Lines{"a"} : Lines({"a", "a"}));
}

TEST(DbSqlExec, copies_after_a_text_without_the_word_select) {
    EXPECT_EQ(commands_after("delete from user_urlinfo;", 0), Lines{copy_command});
    EXPECT_EQ(commands_after("", 0), Lines{copy_command});
    EXPECT_EQ(commands_after(nullptr, 0), Lines{copy_command});
}

TEST(DbSqlExec, copies_after_a_query_in_capitals) {
    EXPECT_EQ(commands_after("SELECT name from user_urlinfo;", 0), Lines{copy_command});
    EXPECT_EQ(commands_after("Select name from user_urlinfo;", 0), Lines{copy_command});
    EXPECT_EQ(commands_after("insert into user_urlinfo(name) SELECT 'a';", 0), Lines{copy_command});
}

TEST(DbSqlExec, does_not_copy_after_a_query) {
    EXPECT_EQ(commands_after("select name from user_urlinfo;", 0), Lines());
    EXPECT_EQ(commands_after("insert into user_urlinfo(name) select 'a';", 0), Lines());
}

TEST(DbSqlExec, does_not_copy_after_an_insert_whose_value_contains_the_word_select) {
    EXPECT_EQ(commands_after("insert into user_urlinfo(name) values('preselected');", 0), Lines());
    EXPECT_EQ(support::value("select name from user_urlinfo;"), "preselected");
}

TEST(DbSqlExec, copies_after_a_failed_statement_unless_it_contains_the_word_select) {
    EXPECT_EQ(commands_after("insert into nowhere values(1);", -1), Lines{copy_command});
    EXPECT_EQ(commands_after("select name from nowhere;", -1), Lines());
}

TEST(DbSqlExec, does_not_copy_a_database_that_it_could_not_open) {
    ASSERT_EQ(unlink(support::main_database), 0);
    ASSERT_EQ(mkdir(support::main_database, 0755), 0);
    const support::DeliberateLeak leak;
    EXPECT_EQ(commands_after("delete from user_urlinfo;", -1), Lines());
}

TEST(DbSqlExec, the_copy_onto_itself_leaves_the_database_as_it_was) {
    // In the foreground, to see its end.
    ASSERT_EQ(execute("insert into user_urlinfo(name) select 'a';"), 0);
    const std::string before = support::file_content(support::main_database);
    std::string command = std::string(copy_command).substr(sizeof("system"));
    command.resize(command.size() - 1);
    Recorder recorder;
    support::streams_of([&] { std::system(command.c_str()); });  // NOLINT(cert-env33-c)
    EXPECT_EQ(support::file_content(support::main_database), before);
}

TEST(DbSqlExec, ignores_what_became_of_the_copy) {
    ASSERT_EQ(std::rename("/bin/sh", "/bin/away"), 0);  // no command can be run
    Recorder recorder;
    EXPECT_EQ(execute("delete from user_urlinfo;"), 0);
    EXPECT_EQ(recorder.calls({"system"}), Lines{copy_command});
}

TEST(DbSqlExec, executes_also_when_the_lock_is_refused) {
    Recorder recorder;
    recorder.answer("fcntl", {ENOLCK});
    EXPECT_EQ(execute("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(support::value("select count(*) from user_urlinfo;"), "1");
}

}  // namespace
