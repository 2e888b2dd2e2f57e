// Backup, restore and reset where they run commands, of which nobody looks at what came.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "core/holdings.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/process.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

struct Operation : support::Named {
    int (*run)();
    Lines commands;
    std::string directory;  // of the copy
    bool replaces_the_main_database;
};

const Operation operations[] = {
    {{"backup_sqlite_db"},
     backup_sqlite_db,
     {"system mkdir -p /var/tmpconfig/database",
      "system cp -f /etc/config/systemconf/database/myrouter.db /var/tmpconfig/database/myrouter.db"},
     "/var/tmpconfig/database",
     false},
    {{"restore_sqlite_db"},
     restore_sqlite_db,
     {"system cp -f /var/tmpconfig/database/myrouter.db /etc/config/systemconf/database/myrouter.db"},
     "/etc/config/systemconf/database",
     true},
    {{"reset_sqlite_db"},
     reset_sqlite_db,
     {"system rm -f /etc/config/systemconf/database/myrouter.db; cp -f "
      "/rom/etc/config/systemconf/database/myrouter.db /etc/config/systemconf/database/myrouter.db",
      "system cp -f /rom/etc/config/systemconf/database/myrouter.db "
      "/etc/config/systemconf/database/myrouter.db"},
     "/etc/config/systemconf/database",
     true},
};

class Maintenance : public ::testing::TestWithParam<Operation> {};

TEST_P(Maintenance, settles_the_database_runs_its_commands_and_syncs_under_the_lock) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    Recorder recorder;
    recorder.keep_commands_from_running();
    Holdings holdings(recorder);
    EXPECT_EQ(GetParam().run(), 0);
    Lines expected{"open lock file", "lock",
                   "sqlite3_open_v2 /etc/config/systemconf/database/myrouter.db 2",  // SQLITE_OPEN_READWRITE
                   "sqlite3_exec select count(*) from sqlite_master;", "sqlite3_close"};
    if (GetParam().replaces_the_main_database) {
        expected.insert(expected.end(), {"unlink /etc/config/systemconf/database/myrouter.db-journal",
                                         "unlink /etc/config/systemconf/database/myrouter.db-wal"});
    }
    expected.insert(expected.end(), GetParam().commands.begin(), GetParam().commands.end());
    expected.insert(expected.end(), {"syncfs " + GetParam().directory, "unlock", "close lock file"});
    EXPECT_EQ(recorder.calls(), expected);
    EXPECT_EQ(holdings.changes(), (Lines{"sqlite3_open_v2 /etc/config/systemconf/database/myrouter.db 2: lock",
                                         "close lock file: nothing"}));
}

TEST_P(Maintenance, syncs_everything_where_one_file_system_cannot_be) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    Recorder recorder;
    recorder.answer("syncfs", {ENOSYS});
    EXPECT_EQ(GetParam().run(), 0);
    EXPECT_EQ(recorder.calls({"sync"}), (Lines{"syncfs " + GetParam().directory, "sync"}));
}

TEST_P(Maintenance, keeps_the_locks_that_the_process_has_on_the_database) {
    const support::Database database;
    ASSERT_EQ(backup_sqlite_db(), 0);
    database.execute("begin immediate;");
    EXPECT_EQ(GetParam().run(), 0);
    EXPECT_EQ(support::Process([] {
                  const support::Database other;
                  sqlite3_busy_timeout(other.handle(), 0);
                  return sqlite3_exec(other.handle(), "begin immediate;", nullptr, nullptr, nullptr) == SQLITE_BUSY;
              }).wait(),
              GetParam().name == "reset_sqlite_db" ? 1 : 0);  // which puts another file in place
}

TEST_P(Maintenance, succeeds_whatever_becomes_of_its_commands) {
    support::write_file("/var/tmpconfig", "in the way of the backup directory");
    ASSERT_EQ(unlink(support::factory_database), 0);
    support::streams_of([] { EXPECT_EQ(GetParam().run(), 0); });
}

TEST_P(Maintenance, goes_on_when_the_database_cannot_be_settled) {
    support::write_file(support::main_database,
                        "this is no database, and it is longer than a header would have to be "
                        "for SQLite to read one: a hundred bytes");
    Recorder recorder;
    support::streams_of([] { EXPECT_EQ(GetParam().run(), 0); });
    EXPECT_EQ(recorder.calls({"system"}), GetParam().commands);
    EXPECT_EQ(recorder.calls({"usleep"}), Lines());
}

TEST_P(Maintenance, leaves_no_descriptor_and_no_memory_of_sqlite) {
    const int descriptors = support::open_descriptors();
    const sqlite3_int64 memory = sqlite3_memory_used();
    support::streams_of([] { EXPECT_EQ(GetParam().run(), 0); });
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_EQ(sqlite3_memory_used(), memory);
    EXPECT_TRUE(support::lock_file_is_free());
}

INSTANTIATE_TEST_SUITE_P(, Maintenance, ::testing::ValuesIn(operations),
                         [](const auto &test) { return test.param.name; });

TEST(BackupSqliteDb, syncs_everything_when_its_directory_cannot_be_made) {
    support::write_file("/var/tmpconfig", "in the way of the backup directory");
    Recorder recorder;
    support::streams_of([] { EXPECT_EQ(backup_sqlite_db(), 0); });
    EXPECT_EQ(recorder.calls({"sync"}), Lines{"sync"});
}

TEST(RestoreSqliteDb, leaves_the_main_database_as_it_was_without_a_backup) {
    support::execute("insert into user_urlinfo(name) values('a');");
    const std::string before = support::file_content(support::main_database);
    support::streams_of([] { EXPECT_EQ(restore_sqlite_db(), 0); });
    EXPECT_EQ(support::file_content(support::main_database), before);
}

TEST(RestoreSqliteDb, creates_no_database_without_a_backup) {
    ASSERT_EQ(unlink(support::main_database), 0);
    support::streams_of([] { EXPECT_EQ(restore_sqlite_db(), 0); });
    EXPECT_FALSE(support::file_exists(support::main_database));
}

}  // namespace
