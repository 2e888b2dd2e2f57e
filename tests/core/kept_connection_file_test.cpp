// What becomes of the connection that is kept when the file is another one, or has other content: what is read is what
// a connection that was just opened would read.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "core/kept.h"
#include "core/killed_writer.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/process.h"

namespace {

using kept::keep_connection;
using kept::name_device;
using kept::opened_by_reading;
using kept::read_name;
using support::Database;
using support::file_content;
using support::main_database;
using support::write_file;

constexpr char other_database[] = "/tmp/other.db";
constexpr int rounds = 400;

/// Writes a number of four bytes into a header: how often the database was changed, in both places.
void put_counter(std::string &content, unsigned counter) {
    for (const std::size_t place : {24U, 92U}) {
        for (unsigned byte = 0; byte < 4; ++byte) {
            content[place + byte] = static_cast<char>(counter >> (24 - 8 * byte));
        }
    }
}

unsigned counter_of(const std::string &content) {
    unsigned counter = 0;
    for (unsigned byte = 0; byte < 4; ++byte) {
        counter = counter << 8 | static_cast<unsigned char>(content[24 + byte]);
    }
    return counter;
}

/// A database of another firmware: the same tables in another order, as often changed, with SQLite's cookie the same.
/// DevInfo has the root page that another table has here.
std::string other_firmware(const std::string &name) {
    write_file(other_database, "");
    {
        const Database own;
        const Database other(other_database);
        for (const std::string &sql : own.rows("select sql from sqlite_master where sql is not null and name not like "
                                               "'sqlite\\_%' escape '\\' order by rootpage desc;")) {
            other.execute(sql);
        }
        other.execute("insert into DevInfo(Dev_Sn,Dev_Name) values(7,'" + name +
                      "'); pragma schema_version=" + own.value("pragma schema_version;") + ";");
        constexpr char root_page[] = "select rootpage from sqlite_master where name='DevInfo';";
        EXPECT_NE(other.value(root_page), own.value(root_page));
        EXPECT_EQ(other.value("pragma schema_version;"), own.value("pragma schema_version;"));
    }
    return file_content(other_database);
}

void overwrite(const std::string &content) {
    write_file(main_database, content);
}

void replace(const std::string &content) {
    const std::string next = std::string(main_database) + ".new";
    write_file(next, content);
    ASSERT_EQ(std::rename(next.c_str(), main_database), 0);
}

struct Way : support::Named {
    void (*put)(const std::string &content);
};

class KeptConnectionFile : public testing::TestWithParam<Way> {
protected:
    KeptConnectionFile() {
        name_device("first");
        first_ = file_content(main_database);
    }

    static void put(const std::string &content) { GetParam().put(content); }

    std::string first_;
};

TEST_P(KeptConnectionFile, of_another_content_is_read_as_it_is_in_hundreds_of_rounds) {
    name_device("second");
    std::string second = file_content(main_database);
    put_counter(second, counter_of(first_));  // pages that were kept would pass for those of the file
    for (int round = 0; round < rounds; ++round) {
        put(first_);
        ASSERT_EQ(read_name(), "first") << round;
        put(second);
        ASSERT_EQ(read_name(), "second") << round;
    }
}

TEST_P(KeptConnectionFile, of_another_firmware_is_read_as_it_is_in_hundreds_of_rounds) {
    std::string other = other_firmware("other");
    EXPECT_EQ(other.size(), first_.size());
    for (const unsigned changes :
         {0U, 1U}) {  // as often changed, too, and at the same time as the clock goes: in steps
        put_counter(other, counter_of(first_) + changes);
        for (int round = 0; round < rounds; ++round) {
            put(first_);
            ASSERT_EQ(read_name(), "first") << round;
            ASSERT_EQ(read_name(), "first") << round;
            put(other);
            ASSERT_EQ(read_name(), "other") << round;
            ASSERT_EQ(read_name(), "other") << round;
        }
    }
}

TEST_P(KeptConnectionFile, that_is_no_database_for_a_while_is_read_afterwards) {
    keep_connection();
    for (int round = 0; round < 20; ++round) {
        put("");
        EXPECT_EQ(read_name(), "");
        put(std::string(9000, 'x'));
        EXPECT_EQ(read_name(), "");
        put(first_);
        EXPECT_EQ(read_name(), "first");
    }
}

TEST_P(KeptConnectionFile, in_write_ahead_logging_is_not_kept) {
    keep_connection();
    put(first_);
    Database(main_database).execute("pragma journal_mode=wal;");
    name_device("logged");
    for (int call = 0; call < 40; ++call) {
        EXPECT_EQ(read_name(), "logged");
        EXPECT_EQ(kept::descriptors().size(), 0U);
    }
    Database(main_database).execute("pragma journal_mode=delete;");
    name_device("again");
    EXPECT_EQ(read_name(), "again");
}

INSTANTIATE_TEST_SUITE_P(, KeptConnectionFile,
                         testing::Values(Way{{"overwritten"}, overwrite}, Way{{"replaced"}, replace}),
                         testing::PrintToStringParamName());

TEST(KeptConnectionOfAFile, that_is_deleted_is_not_used) {
    name_device("first");
    keep_connection();
    ASSERT_EQ(unlink(main_database), 0);
    EXPECT_EQ(read_name(), "");
    EXPECT_TRUE(support::file_exists(main_database));  // as a query makes it
    ASSERT_EQ(reset_sqlite_db(), 0);
    name_device("new");
    EXPECT_EQ(read_name(), "new");
}

TEST(KeptConnectionOfAFile, stays_after_writes) {
    name_device("first");
    keep_connection();
    for (int round = 0; round < 50; ++round) {
        const std::string name = "name " + std::to_string(round);
        if (round % 2 == 0) {
            EXPECT_EQ(DB_EXEC_SQL_CHAR(("update DevInfo set Dev_Name='" + name + "';").c_str()), 0);
        } else {
            EXPECT_EQ(support::Process([&] {
                          name_device(name);
                          return true;
                      }).wait(),
                      0);
        }
        EXPECT_EQ(read_name(), name);
        EXPECT_EQ(opened_by_reading(), 0U);
    }
}

TEST(KeptConnectionOfAFile, sees_changes_of_the_schema) {
    name_device("first");
    keep_connection();
    support::execute("create table DevInfo_2 as select * from DevInfo; drop table DevInfo;");
    EXPECT_EQ(read_name(), "");
    support::execute("alter table DevInfo_2 rename to DevInfo; update DevInfo set Dev_Name='second';");
    for (int call = 0; call < 20; ++call) {
        EXPECT_EQ(read_name(), "second");
    }
    EXPECT_EQ(opened_by_reading(), 0U);
}

/// Backup, reset and restore one after the other, with readings in between.
void maintain() {
    name_device("saved");
    EXPECT_EQ(read_name(), "saved");
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(read_name(), "saved");
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_EQ(read_name(), "");
    name_device("after the reset");
    EXPECT_EQ(read_name(), "after the reset");
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_EQ(read_name(), "saved");
}

TEST(KeptConnectionOfAFile, is_in_nobodys_way_when_it_is_saved_and_restored) {
    keep_connection();
    for (int round = 0; round < 5; ++round) {
        maintain();
    }
}

TEST(KeptConnectionOfAFile, sees_what_another_process_saves_and_restores) {
    name_device("saved");
    keep_connection();
    const auto elsewhere = [](int (*operation)()) { return support::Process([=] { return operation() == 0; }).wait(); };
    for (int round = 0; round < 5; ++round) {
        ASSERT_EQ(elsewhere(backup_sqlite_db), 0);
        EXPECT_EQ(read_name(), "saved");
        ASSERT_EQ(elsewhere(reset_sqlite_db), 0);
        EXPECT_EQ(read_name(), "");
        ASSERT_EQ(elsewhere(restore_sqlite_db), 0);
        EXPECT_EQ(read_name(), "saved");
    }
}

TEST(KeptConnectionOfAFile, that_a_killed_writer_left_half_done_reads_what_was_committed) {
    name_device("first");
    keep_connection();
    for (int round = 0; round < 5; ++round) {
        execute_and_be_killed(
            "pragma cache_size=1; begin immediate; update DevInfo set Dev_Name='half done'; with recursive n(i) as "
            "(select 1 union all select i+1 from n where i<900) insert into user_urlinfo(mark) select zeroblob(500) "
            "from n;");
        ASSERT_TRUE(support::file_exists(journal));
        EXPECT_EQ(read_name(), "first");
        EXPECT_FALSE(support::file_exists(journal));
        for (int call = 0; call < 20; ++call) {
            EXPECT_EQ(read_name(), "first");
        }
        EXPECT_EQ(opened_by_reading(), 0U);
    }
}

}  // namespace
