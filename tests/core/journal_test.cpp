// Backup, restore and reset beside the journal of a writer that was killed.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/process.h"

namespace {

constexpr char journal[] = "/etc/config/systemconf/database/myrouter.db-journal";
constexpr char sum_of_rows[] = "select count(*) || ' rows of ' || ifnull(sum(length(mark)), 0) from user_urlinfo;";

void insert_rows(const support::Database &database, int count, int size) {
    database.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
                     std::to_string(count) + ") insert into user_urlinfo(mark) select hex(randomblob(" +
                     std::to_string(size / 2) + ")) from n;");
}

/// A writer that dies in the middle of a transaction, having written parts of it into the database file.
void kill_a_writer() {
    const support::Gate spilled;
    support::Process writer([&] {
        const support::Database database;
        database.execute("pragma cache_size = 5; begin;");
        database.execute("update user_urlinfo set mark = 'half done' where id % 2;");
        insert_rows(database, 300, 2000);
        spilled.open();
        return pause() == 0;
    });
    spilled.wait();
    kill(writer.id(), SIGKILL);
    ASSERT_EQ(writer.wait(), 128 + SIGKILL);
}

/// 200 rows of 1000 characters are committed; the backup, where there is one, has 100 of 400.
class KilledWriter : public ::testing::Test {
protected:
    void SetUp() override {
        insert_rows(support::Database(), 100, 400);
        ASSERT_EQ(backup_sqlite_db(), 0);
        support::execute("delete from user_urlinfo;");
        insert_rows(support::Database(), 200, 1000);
        committed_ = support::file_content(support::main_database);
        kill_a_writer();
        ASSERT_TRUE(support::file_exists(journal));
        ASSERT_NE(support::file_content(support::main_database), committed_);
    }

    static void expect_sound(const char *path, const char *rows) {
        const support::Database database(path);
        EXPECT_EQ(database.value("pragma integrity_check;"), "ok");
        EXPECT_EQ(database.value(sum_of_rows), rows);
    }

    std::string committed_;
};

TEST_F(KilledWriter, does_not_spoil_a_restored_database) {
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_FALSE(support::file_exists(journal));
    expect_sound(support::main_database, "100 rows of 40000");
    EXPECT_EQ(support::file_content(support::main_database), support::file_content(support::backup_database));
}

TEST_F(KilledWriter, does_not_spoil_a_reset_database) {
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_FALSE(support::file_exists(journal));
    expect_sound(support::main_database, "0 rows of 0");
    EXPECT_EQ(support::file_content(support::main_database), support::file_content(support::factory_database));
}

TEST_F(KilledWriter, leaves_the_backup_without_its_half_done_work) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(support::file_content(support::backup_database), committed_);
    expect_sound(support::backup_database, "200 rows of 200000");
    expect_sound(support::main_database, "200 rows of 200000");
}

TEST_F(KilledWriter, is_rolled_back_by_the_next_statement) {
    EXPECT_EQ(GET_DB_SQL_INT_COUNT_ROUTE("select count(*) from user_urlinfo where length(mark) = 1000;"), 200);
    expect_sound(support::main_database, "200 rows of 200000");
}

}  // namespace
