// Backup, restore and reset beside a killed writer's journal that cannot be rolled back at once.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstring>
#include <functional>
#include <numeric>
#include <optional>

#include "core/killed_writer.h"
#include "support/failing_files.h"
#include "support/gate.h"
#include "support/named.h"
#include "support/process.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using Lines = std::vector<std::string>;
using Sleeps = std::vector<unsigned>;

constexpr unsigned second = 1'000'000;

/// Another process that keeps SQLite's lock for readers, as one does that is looking at the journal.
class Occupant {
public:
    Occupant() { held_.wait(); }

    void leave() {
        release_.open();
        process_.wait();
    }

private:
    bool occupy() const {
        struct flock lock {};
        lock.l_type = F_RDLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = 0x40000002;  // where SQLite's file format puts it
        lock.l_len = 510;
        const int fd = open(support::main_database, O_RDWR);
        const bool locked = fcntl(fd, F_SETLK, &lock) == 0;
        held_.open();
        release_.wait();
        return locked;
    }

    const support::Gate held_;
    const support::Gate release_;
    support::Process process_{[this] { return occupy(); }};
};

class Settling : public KilledWriter {
protected:
    void SetUp() override {
        KilledWriter::SetUp();
        recorder_.emplace();
        for (int i = 0; i < 1000; ++i) {
            recorder_->answer("usleep", {0});  // time passes in numbers only
        }
    }

    void at_sleep(std::size_t n, const std::function<void()> &action) {
        recorder_->watch([=](const std::string & /*line*/) {
            if (recorder_->sleeps().size() == n) {
                const std::function<void()> once = action;  // it goes with what watches
                recorder_->watch({});
                once();
            }
        });
    }

    unsigned slept() const {
        const Sleeps sleeps = recorder_->sleeps();
        return std::accumulate(sleeps.begin(), sleeps.end(), 0U);
    }

    void expect_slept_nearly(unsigned limit) const {
        EXPECT_LE(slept(), limit);
        EXPECT_GT(slept() + recorder_->sleeps().back() + 500, limit);  // one more would have been too much
    }

    std::optional<support::Recorder> recorder_;
};

struct Operation : support::Named {
    int (*run)();
    const char *main_database;  // what it holds afterwards
    bool journal_stays;         // where it could not be settled
};

class SettlingOf : public Settling, public ::testing::WithParamInterface<Operation> {
protected:
    static void run() { EXPECT_EQ(GetParam().run(), 0); }

    static void expect_done() {
        EXPECT_EQ(support::file_exists(journal), GetParam().journal_stays);
        EXPECT_EQ(content_of(support::main_database), GetParam().main_database);
    }
};

TEST_P(SettlingOf, waits_for_a_process_that_is_at_the_database) {
    Occupant occupant;
    at_sleep(3, [&] { occupant.leave(); });
    run();
    EXPECT_EQ(recorder_->sleeps(), (Sleeps{5500, 6000, 6500}));
    EXPECT_FALSE(support::file_exists(journal));
    EXPECT_EQ(content_of(support::main_database), GetParam().main_database);
}

TEST_P(SettlingOf, ends_after_a_minute) {
    Occupant occupant;
    run();
    occupant.leave();
    expect_slept_nearly(60 * second);
    expect_done();
}

TEST_P(SettlingOf, ends_after_a_second_of_io_errors) {
    {
        const support::FailingRemovals removals(INT_MAX);
        run();
    }
    expect_slept_nearly(second);
    expect_done();
}

INSTANTIATE_TEST_SUITE_P(
    , SettlingOf,
    ::testing::Values(Operation{{"backup_sqlite_db"}, backup_sqlite_db, "200 rows of 200000", true},
                      Operation{{"restore_sqlite_db"}, restore_sqlite_db, "100 rows of 40000", false},
                      Operation{{"reset_sqlite_db"}, reset_sqlite_db, "0 rows of 0", false}),
    [](const auto &test) { return test.param.name; });

TEST_F(Settling, that_waited_makes_a_whole_backup) {
    Occupant occupant;
    at_sleep(3, [&] { occupant.leave(); });
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::backup_database), committed_rows);
}

TEST_F(Settling, survives_io_errors_that_pass) {
    const support::FailingRemovals removals(3);
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(recorder_->sleeps(), (Sleeps{5500, 6000, 6500}));
    EXPECT_EQ(support::file_content(support::backup_database), committed_);
    EXPECT_FALSE(support::file_exists(journal));
}

TEST_F(Settling, leaves_the_journal_when_there_is_no_backup_to_restore) {
    ASSERT_EQ(unlink(support::backup_database), 0);
    recorder_->answer("sqlite3_open_v2", {SQLITE_CANTOPEN});  // nothing is settled
    support::streams_of([] { EXPECT_EQ(restore_sqlite_db(), 0); });
    EXPECT_EQ(content_of(support::main_database), committed_rows);
}

TEST_F(Settling, counts_waiting_and_io_errors_apart) {
    for (int i = 0; i < 100; ++i) {
        recorder_->answer("sqlite3_exec", {SQLITE_BUSY, SQLITE_LOCKED});
    }
    recorder_->answer("sqlite3_exec", {SQLITE_IOERR});
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_GT(slept(), second);
    EXPECT_EQ(support::file_content(support::backup_database), committed_);
}

TEST_F(Settling, takes_a_detailed_result_code_for_what_it_is) {
    recorder_->answer("sqlite3_open_v2", {SQLITE_BUSY_RECOVERY});
    recorder_->answer("sqlite3_exec", {SQLITE_IOERR_READ, SQLITE_LOCKED_SHAREDCACHE, SQLITE_BUSY_SNAPSHOT});
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(recorder_->sleeps().size(), 4U);
    EXPECT_EQ(support::file_content(support::backup_database), committed_);
}

TEST_F(Settling, does_not_wait_for_what_does_not_pass) {
    recorder_->answer("sqlite3_exec", {SQLITE_NOTADB});
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_EQ(recorder_->sleeps(), Sleeps());
    EXPECT_EQ(content_of(support::main_database), rows_of_the_backup);
}

// As on flash that can be read only.
TEST_F(Settling, ends_also_when_nobody_can_remove_the_journal) {
    const std::string directory(support::main_database, std::strrchr(support::main_database, '/'));
    for (const auto operation : {backup_sqlite_db, restore_sqlite_db, reset_sqlite_db}) {
        ASSERT_EQ(chmod(directory.c_str(), 0555), 0);
        support::streams_of([&] { EXPECT_EQ(operation(), 0); });
        ASSERT_EQ(chmod(directory.c_str(), 0755), 0);
        EXPECT_TRUE(support::file_exists(journal));
    }
    EXPECT_LE(slept(), 3 * second);
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::main_database), rows_of_the_factory);
}

TEST(WriteAheadLog, of_a_killed_writer_does_not_spoil_a_restored_database) {
    insert_rows(support::Database(), 100, 400);
    ASSERT_EQ(backup_sqlite_db(), 0);
    execute_and_be_killed("pragma journal_mode = wal; update user_urlinfo set mark = 'committed in the log';");
    ASSERT_TRUE(support::file_exists("/etc/config/systemconf/database/myrouter.db-wal"));
    support::Recorder recorder;
    recorder.answer("sqlite3_open_v2", {SQLITE_CANTOPEN});  // nothing is settled
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_EQ(support::value("select count(*) from user_urlinfo where length(mark) = 400;"), "100");
    EXPECT_EQ(support::value("pragma integrity_check;"), "ok");
}

TEST(WriteAheadLog, of_a_killed_writer_arrives_in_the_backup) {
    insert_rows(support::Database(), 100, 400);
    execute_and_be_killed("pragma journal_mode = wal; update user_urlinfo set mark = 'committed in the log';");
    ASSERT_EQ(backup_sqlite_db(), 0);
    const support::Database backup(support::backup_database);
    EXPECT_EQ(backup.value("select count(*) from user_urlinfo where mark = 'committed in the log';"), "100");
}

}  // namespace
