// Backup, restore and reset where they copy through SQLite: what they refuse, and what they leave then.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <numeric>

#include "core/killed_writer.h"
#include "support/failing_files.h"
#include "support/left_errno.h"
#include "support/named.h"
#include "support/process.h"
#include "support/recorder.h"

namespace {

using support::Database;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char garbage[] =
    "this is no database, and it is longer than a header would have to be for SQLite to read one: a hundred bytes";

struct Operation : support::Named {
    int (*run)();
    const char *source;
    const char *destination;
};

class Copy : public ::testing::TestWithParam<Operation> {
protected:
    Copy() {
        support::execute("insert into user_urlinfo(name) values('kept');");
        EXPECT_EQ(backup_sqlite_db(), 0);
    }

    /// Expects that the operation fails, tells why and changes nothing.
    static void expect_refusal(int reason, const std::string &told) {
        const std::string before = support::file_content(GetParam().destination);
        Recorder recorder;
        for (int i = 0; i < 1000; ++i) {
            recorder.answer("usleep", {0});  // time passes in numbers only
        }
        support::expect_errno(reason, [] { EXPECT_EQ(GetParam().run(), -1); });
        EXPECT_EQ(recorder.calls({"syslog"}),
                  Lines{std::string("syslog 3 ") + GetParam().source + " is not copied to " + GetParam().destination +
                        ": " + told + "\n"});
        EXPECT_EQ(support::file_content(GetParam().destination), before);
        EXPECT_FALSE(support::file_exists(GetParam().destination + std::string(".new")));
        EXPECT_TRUE(support::lock_file_is_free());
    }

    static void damage(const char *path) {
        Database(path).execute("create table filler(bytes); insert into filler values(randomblob(20000));");
        std::string content = support::file_content(path);
        content.replace(4096, 8192, std::string(8192, 'x'));
        support::write_file(path, content);
    }
};

TEST_P(Copy, refuses_a_source_that_is_missing) {
    ASSERT_EQ(unlink(GetParam().source), 0);
    expect_refusal(ENOENT, "it is not there");
}

TEST_P(Copy, refuses_a_source_that_is_no_database) {
    support::write_file(GetParam().source, garbage);
    expect_refusal(EINVAL, "it is damaged");
}

TEST_P(Copy, refuses_a_source_that_is_damaged) {
    damage(GetParam().source);
    expect_refusal(EINVAL, "it is damaged");
}

TEST_P(Copy, refuses_a_source_that_is_empty) {
    support::write_file(GetParam().source, "");
    expect_refusal(EINVAL, "it has no table");
}

TEST_P(Copy, refuses_a_source_that_has_only_a_view) {
    support::write_file(GetParam().source, "");
    Database(GetParam().source).execute("create view DevInfo as select 1;");
    expect_refusal(EINVAL, "it has no table");
}

TEST_P(Copy, gives_up_after_a_minute_beside_somebody_who_does_not_let_go) {
    const Database other(GetParam().source);
    other.execute("begin exclusive;");
    expect_refusal(ETIMEDOUT, "database is locked");
}

TEST_P(Copy, changes_nothing_on_a_full_disk) {
    for (const char *const path : {support::main_database, support::backup_database, support::factory_database}) {
        if (path != GetParam().destination) {
            Database(path).execute("insert into user_urlinfo(name) values(hex(randomblob(20000)));");
        }
    }
    const std::string before = support::file_content(GetParam().destination);
    support::Process process([] {
        const rlimit limit{120'000, 120'000};  // of a file
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        Recorder recorder;
        for (int i = 0; i < 2000; ++i) {
            recorder.answer("usleep", {0});
        }
        errno = 0;
        return GetParam().run() == -1 && (errno == EIO || errno == ENOSPC);
    });
    EXPECT_EQ(process.wait(), 0);
    EXPECT_EQ(support::file_content(GetParam().destination), before);
    EXPECT_FALSE(support::file_exists(GetParam().destination + std::string(".new")));
}

TEST_P(Copy, leaves_mode_and_owner_of_the_file) {
    const char *const path = GetParam().destination;
    ASSERT_EQ(chmod(path, 0640), 0);
    ASSERT_EQ(GetParam().run(), 0);
    struct stat status {};
    ASSERT_EQ(stat(path, &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_P(Copy, takes_source_and_destination_out_of_write_ahead_logging) {
    Database(GetParam().source).value("pragma journal_mode=wal;");
    Database(GetParam().destination).value("pragma journal_mode=wal;");
    ASSERT_EQ(GetParam().run(), 0);
    EXPECT_EQ(Database(GetParam().destination).value("pragma journal_mode;"), "delete");
    EXPECT_EQ(Database(GetParam().source).value("pragma journal_mode;"), "delete");
}

TEST_P(Copy, brings_over_another_page_size) {
    Database(GetParam().source).execute("pragma page_size=1024; vacuum;");
    Database(GetParam().destination).execute("pragma page_size=8192; vacuum;");
    ASSERT_EQ(GetParam().run(), 0);
    const Database destination(GetParam().destination);
    EXPECT_EQ(destination.value("pragma integrity_check;"), "ok");
    EXPECT_EQ(destination.value("select count(*) from user_urlinfo;"),
              Database(GetParam().source).value("select count(*) from user_urlinfo;"));
}

TEST_P(Copy, brings_over_tables_and_columns_that_the_destination_does_not_have) {
    Database(GetParam().source)
        .execute("create table more(value); insert into more values(7); alter table user_urlinfo add column more;");
    ASSERT_EQ(GetParam().run(), 0);
    EXPECT_EQ(Database(GetParam().destination).value("select value from more;"), "7");
}

TEST_P(Copy, has_the_lock_as_long_as_it_works) {
    Recorder recorder;
    Lines without_lock;
    recorder.watch([&](const std::string &line) {
        if ((line.compare(0, 12, "sqlite3_open") == 0 || line == "sqlite3_close") && support::lock_file_is_free()) {
            without_lock.push_back(line);
        }
    });
    ASSERT_EQ(GetParam().run(), 0);
    EXPECT_EQ(without_lock, Lines());
    EXPECT_FALSE(recorder.calls({"sqlite3_open_v2"}).empty());
}

TEST_P(Copy, is_there_wholly_or_not_at_all_when_its_process_is_killed) {
    support::execute("insert into user_urlinfo(name) values(hex(randomblob(500000)));");
    for (const char *const path : {support::backup_database, support::factory_database}) {
        Database(path).execute("insert into user_urlinfo(name) values(hex(randomblob(500000)));");
    }
    const std::string old = Database(GetParam().destination).value("select group_concat(name) from user_urlinfo;");
    const std::string replaced = Database(GetParam().source).value("select group_concat(name) from user_urlinfo;");
    for (unsigned n = 0; n < 20; ++n) {
        support::Process victim([] { return GetParam().run() == 0; });
        usleep(n * 1000);
        kill(victim.id(), SIGKILL);
        victim.wait();
        const Database destination(GetParam().destination);
        const std::string now = destination.value("select group_concat(name) from user_urlinfo;");
        EXPECT_TRUE(now == old || now == replaced) << n;
        EXPECT_EQ(destination.value("pragma integrity_check;"), "ok");
    }
    EXPECT_EQ(GetParam().run(), 0);
}

const Operation backup{{"backup_sqlite_db"}, backup_sqlite_db, support::main_database, support::backup_database};
const Operation restore{{"restore_sqlite_db"}, restore_sqlite_db, support::backup_database, support::main_database};
const Operation reset{{"reset_sqlite_db"}, reset_sqlite_db, support::factory_database, support::main_database};

INSTANTIATE_TEST_SUITE_P(, Copy, ::testing::Values(backup, restore, reset),
                         [](const auto &test) { return test.param.name; });

/// Restore and reset.
class CopyToMain : public Copy {
protected:
    static void expect_layout_refused() {
        expect_refusal(EINVAL, "a column of the main database is missing, or elsewhere");
    }
    static void expect_source_in_place() {
        const Database main;
        EXPECT_EQ(main.value("pragma integrity_check;"), "ok");
        EXPECT_EQ(main.value("select group_concat(name) from user_urlinfo;"),
                  Database(GetParam().source).value("select group_concat(name) from user_urlinfo;"));
    }
};

TEST_P(CopyToMain, refuses_a_source_without_one_of_the_tables) {
    Database(GetParam().source).execute("drop table filter_url;");
    expect_layout_refused();
}

TEST_P(CopyToMain, refuses_a_source_with_a_column_elsewhere) {
    Database(GetParam().source)
        .execute("alter table user_urlinfo rename to old; create table user_urlinfo(first, id integer);");
    expect_layout_refused();
}

TEST_P(CopyToMain, refuses_a_source_with_a_column_less) {
    support::execute("alter table user_urlinfo add column more;");
    expect_layout_refused();
}

TEST_P(CopyToMain, replaces_a_main_database_that_is_none) {
    support::write_file(support::main_database, garbage);
    support::write_file(support::main_database + std::string("-journal"), garbage);
    ASSERT_EQ(GetParam().run(), 0);
    EXPECT_FALSE(support::file_exists(support::main_database + std::string("-journal")));
    expect_source_in_place();
}

// It may be a good one, with columns that the source does not have.
TEST_P(CopyToMain, leaves_a_main_database_that_cannot_be_opened_for_once) {
    const std::string before = support::file_content(support::main_database);
    const support::FailingFiles files(2, SQLITE_CANTOPEN);  // the first one is the source
    support::expect_errno(EIO, [] { EXPECT_EQ(GetParam().run(), -1); });
    EXPECT_TRUE(support::FailingFiles::failed());
    EXPECT_EQ(support::file_content(support::main_database), before);
}

TEST_P(CopyToMain, replaces_a_main_database_that_is_gone) {
    ASSERT_EQ(unlink(support::main_database), 0);
    ASSERT_EQ(GetParam().run(), 0);
    expect_source_in_place();
}

// They would be taken for those of the new one.
TEST_P(CopyToMain, removes_the_journals_of_a_main_database_that_is_gone) {
    const std::string main = support::main_database;
    const std::string journals[] = {main + "-journal", main + "-wal", main + "-shm"};
    ASSERT_EQ(unlink(support::main_database), 0);
    for (const std::string &journal : journals) {
        support::write_file(journal, garbage);
    }
    ASSERT_EQ(GetParam().run(), 0);
    for (const std::string &journal : journals) {
        EXPECT_FALSE(support::file_exists(journal)) << journal;
    }
    expect_source_in_place();
}

TEST_P(CopyToMain, fills_a_main_database_that_is_empty) {
    support::write_file(support::main_database, "");
    ASSERT_EQ(GetParam().run(), 0);
    expect_source_in_place();
}

TEST_P(CopyToMain, leaves_the_file_that_readers_have_open) {
    struct stat before {};
    struct stat after {};
    ASSERT_EQ(stat(support::main_database, &before), 0);
    ASSERT_EQ(GetParam().run(), 0);
    ASSERT_EQ(stat(support::main_database, &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
}

TEST_P(CopyToMain, lets_readers_see_the_old_or_the_new_and_never_nothing) {
    for (const char *const path : {support::backup_database, support::factory_database}) {
        Database(path).execute("delete from user_urlinfo; insert into user_urlinfo(name) values('new');");
    }
    support::Process reader([] {
        for (;;) {
            char name[300] = "nothing";
            const int result = DB_EXEC_SQL_CHAR_CHAR("select name from user_urlinfo;", name);
            if (result != 0 || (std::string(name) != "kept" && std::string(name) != "new")) {
                return false;
            }
        }
    });
    for (int n = 0; n < 15; ++n) {
        ASSERT_EQ(GetParam().run(), 0);
        ASSERT_EQ(DB_EXEC_SQL_CHAR("update user_urlinfo set name = 'kept';"), 0);
    }
    EXPECT_FALSE(reader.has_ended());
}

TEST_P(CopyToMain, waits_for_a_reader_to_end) {
    const Database reader;
    reader.execute("begin; select * from user_urlinfo;");
    Recorder recorder;
    int sleeps = 0;
    recorder.watch([&](const std::string &line) {
        if (line.compare(0, 7, "usleep ") == 0 && ++sleeps == 3) {
            reader.execute("commit;");
        }
    });
    ASSERT_EQ(GetParam().run(), 0);
    EXPECT_EQ(sleeps, 3);
    expect_source_in_place();
}

TEST_P(CopyToMain, gives_up_after_a_minute_beside_a_reader_that_does_not_end) {
    const Database reader;
    reader.execute("begin; select * from user_urlinfo;");
    Recorder recorder;
    for (int i = 0; i < 1000; ++i) {
        recorder.answer("usleep", {0});
    }
    support::expect_errno(ETIMEDOUT, [] { EXPECT_EQ(GetParam().run(), -1); });
    const std::vector<unsigned> slept = recorder.sleeps();
    const unsigned total = std::accumulate(slept.begin(), slept.end(), 0U);
    EXPECT_LE(total, 60'000'000U);
    EXPECT_GT(total, 59'000'000U);
    reader.execute("commit;");
    EXPECT_EQ(support::value("select name from user_urlinfo;"), "kept");
}

INSTANTIATE_TEST_SUITE_P(, CopyToMain, ::testing::Values(restore, reset),
                         [](const auto &test) { return test.param.name; });

}  // namespace
