// What backup, restore and reset of the main database do, however they copy.
#include <gtest/gtest.h>
#include <unistd.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

/// All that a database holds, as text.
std::string content_of(const char *path) {
    const support::Database database(path);
    EXPECT_EQ(database.value("pragma integrity_check;"), "ok");
    std::string content;
    for (const std::string &table : database.rows("select name from sqlite_master where type='table' order by name;")) {
        content += table + "\n";
        for (const std::string &row : database.rows("select * from \"" + table + "\";")) {
            content += row + "\n";
        }
    }
    return content;
}

struct Operation : support::Named {
    int (*run)();
};

class Maintenance : public ::testing::TestWithParam<Operation> {};

TEST_P(Maintenance, touches_nothing_without_the_lock_file) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    const std::string before = support::file_content(support::main_database);
    Recorder recorder;
    const support::Streams::Text text = support::streams_of([] { EXPECT_EQ(GetParam().run(), -1); });
    EXPECT_EQ(text.error, support::cannot_open_lock_file);
    EXPECT_EQ(text.output, "");
    EXPECT_EQ(recorder.calls(), Lines{"open lock file"});
    EXPECT_EQ(support::file_content(support::main_database), before);
    EXPECT_FALSE(support::file_exists("/var/tmpconfig"));
    EXPECT_FALSE(support::file_exists(support::lock_file));
}

TEST_P(Maintenance, runs_under_the_lock_and_syncs_before_that_goes) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    Recorder recorder;
    ASSERT_EQ(GetParam().run(), 0);
    const Lines calls = recorder.calls({"open lock", "lock", "sync", "unlock", "close lock"});
    const char *const directory =
        GetParam().name == "backup_sqlite_db" ? "/var/tmpconfig/database" : "/etc/config/systemconf/database";
    EXPECT_EQ(calls,
              (Lines{"open lock file", "lock", std::string("syncfs ") + directory, "unlock", "close lock file"}));
}

TEST_P(Maintenance, leaves_no_descriptor_and_no_memory_of_sqlite) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    const int descriptors = support::open_descriptors();
    const sqlite3_int64 memory = sqlite3_memory_used();
    EXPECT_EQ(GetParam().run(), 0);
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_EQ(sqlite3_memory_used(), memory);
    EXPECT_TRUE(support::lock_file_is_free());
}

INSTANTIATE_TEST_SUITE_P(, Maintenance,
                         ::testing::Values(Operation{{"backup_sqlite_db"}, backup_sqlite_db},
                                           Operation{{"restore_sqlite_db"}, restore_sqlite_db},
                                           Operation{{"reset_sqlite_db"}, reset_sqlite_db}),
                         [](const auto &test) { return test.param.name; });

TEST(BackupSqliteDb, copies_the_main_database_over_an_older_backup) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    support::execute("insert into user_urlinfo(name) values('a');");
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::backup_database), content_of(support::main_database));
}

TEST(BackupSqliteDb, leaves_the_main_database_as_it_was) {
    const std::string before = support::file_content(support::main_database);
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(support::file_content(support::main_database), before);
}

TEST(RestoreSqliteDb, brings_the_backup_back) {
    support::execute("insert into user_urlinfo(name) values('a');");
    ASSERT_EQ(backup_sqlite_db(), 0);
    support::execute("delete from user_urlinfo;");
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::main_database), content_of(support::backup_database));
    EXPECT_EQ(support::value("select name from user_urlinfo;"), "a");
}

TEST(RestoreSqliteDb, brings_back_a_database_that_is_gone) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    const std::string before = content_of(support::main_database);
    ASSERT_EQ(unlink(support::main_database), 0);
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::main_database), before);
}

TEST(ResetSqliteDb, brings_the_factory_database_back) {
    support::execute("insert into user_urlinfo(name) values('a');");
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::main_database), content_of(support::factory_database));
}

TEST(ResetSqliteDb, leaves_the_backup_alone) {
    support::execute("insert into user_urlinfo(name) values('a');");
    ASSERT_EQ(backup_sqlite_db(), 0);
    const std::string backup = support::file_content(support::backup_database);
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_EQ(support::file_content(support::backup_database), backup);
}

}  // namespace
