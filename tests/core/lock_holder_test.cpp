// The lock file where it keeps threads apart, too, and lets the nested calls of the one that has it in.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <thread>

#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/named.h"
#include "support/process.h"

namespace {

using support::Gate;

constexpr char insertion[] = "insert into user_urlinfo(name) select 'a';";

std::string rows() {
    return support::value("select count(*) from user_urlinfo;");
}

struct Writer : support::Named {
    void (*write)();
};

const Writer writers[] = {
    {{"DB_EXEC_SQL_CHAR"}, [] { EXPECT_EQ(DB_EXEC_SQL_CHAR(insertion), 0); }},  // which takes the mutex as well
    {{"DbSqlExec"}, [] { EXPECT_EQ(DbSqlExec(const_cast<char *>(insertion)), 0); }},
    {{"GET_DB_SQL_INT"}, [] { EXPECT_EQ(GET_DB_SQL_INT("select 5;"), 1); }},
    {{"get_db_lock"}, [] { EXPECT_EQ(free_db_lock(get_db_lock()), 0); }},
    {{"backup_sqlite_db"}, [] { EXPECT_EQ(backup_sqlite_db(), 0); }},
    {{"reset_sqlite_db"}, [] { EXPECT_EQ(reset_sqlite_db(), 0); }},
};

class Nested : public ::testing::TestWithParam<Writer> {
protected:
    static void write() { GetParam().write(); }
};

TEST_P(Nested, call_joins_the_lock_of_its_thread_and_leaves_it) {
    const int descriptors = support::open_descriptors();
    const int handle = get_db_lock();
    write();
    write();
    EXPECT_FALSE(support::lock_file_is_free());
    EXPECT_EQ(free_db_lock(handle), 0);
    EXPECT_TRUE(support::lock_file_is_free());
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST_P(Nested, call_of_another_thread_waits) {
    const int handle = get_db_lock();
    std::atomic<bool> done{false};
    std::thread other([&] {
        write();
        done = true;
    });
    EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
    EXPECT_FALSE(done);
    write();  // though the other one may have taken the mutex
    EXPECT_FALSE(done);
    free_db_lock(handle);
    other.join();
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST_P(Nested, call_of_a_child_waits) {
    const int handle = get_db_lock();
    support::Process child([] {
        write();
        return !::testing::Test::HasFailure();
    });
    EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
    EXPECT_FALSE(child.has_ended());
    free_db_lock(handle);
    EXPECT_EQ(child.wait(), 0);
}

TEST_P(Nested, call_joins_what_the_program_has_locked_by_itself) {
    const int fd = open(support::lock_file, O_RDWR);
    ASSERT_EQ(lock_reg(fd, F_SETLKW, F_WRLCK, 0, SEEK_SET, 0), 0);
    write();
    close(fd);
    EXPECT_TRUE(support::lock_file_is_free());
}

INSTANTIATE_TEST_SUITE_P(, Nested, ::testing::ValuesIn(writers), [](const auto &test) { return test.param.name; });

/// Nobody has the lock; the next one gets it, and gives it back.
void expect_next_handle_locks() {
    EXPECT_TRUE(support::lock_file_is_free());
    const int next = get_db_lock();
    EXPECT_FALSE(support::lock_file_is_free());
    free_db_lock(next);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(LockHandle, counts_like_any_other) {
    const int first = get_db_lock();
    const int second = get_db_lock();
    free_db_lock(first);  // the one that was there first need not be the last
    EXPECT_FALSE(support::lock_file_is_free());
    EXPECT_EQ(DB_EXEC_SQL_CHAR(insertion), 0);
    EXPECT_FALSE(support::lock_file_is_free());
    free_db_lock(second);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(LockHandle, counts_once_though_it_is_freed_twice) {
    const int first = get_db_lock();
    const int second = get_db_lock();
    free_db_lock(second);
    free_db_lock(second);
    EXPECT_FALSE(support::lock_file_is_free());
    free_db_lock(first);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(LockHandle, can_be_freed_by_another_thread) {
    const int handle = get_db_lock();
    std::thread([=] { free_db_lock(handle); }).join();
    expect_next_handle_locks();
}

TEST(LockHandle, that_is_closed_by_hand_is_no_lock_any_more) {
    const int handle = get_db_lock();
    close(handle);
    expect_next_handle_locks();
}

TEST(LockHandle, whose_number_is_another_file_now_is_no_lock_any_more) {
    const int handle = get_db_lock();
    ASSERT_EQ(dup2(open("/dev/null", O_RDWR), handle), handle);
    expect_next_handle_locks();
}

TEST(LockHandle, is_unlocked_by_lock_reg) {
    const int handle = get_db_lock();
    EXPECT_EQ(lock_reg(handle, F_SETLK, F_UNLCK, 0, SEEK_SET, 0), 0);
    EXPECT_TRUE(support::lock_file_is_free());
    const int next = get_db_lock();
    free_db_lock(handle);
    EXPECT_FALSE(support::lock_file_is_free());
    free_db_lock(next);
}

TEST(LockHandle, stays_the_parents_when_a_child_frees_it) {
    const int handle = get_db_lock();
    EXPECT_EQ(support::Process([=] { return free_db_lock(handle) == 0; }).wait(), 0);
    EXPECT_FALSE(support::lock_file_is_free());
    free_db_lock(handle);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(LockHandle, of_a_file_that_has_been_made_anew_unlocks_though_a_child_has_it_open) {
    const Gate release;
    const int handle = get_db_lock();
    const int other = open(support::lock_file, O_RDWR);
    support::Process child([&] {
        release.wait();
        return true;
    });
    ASSERT_EQ(unlink(support::lock_file), 0);
    support::write_file(support::lock_file, "");
    EXPECT_EQ(free_db_lock(handle), 0);
    EXPECT_EQ(lock_reg(other, F_SETLK, F_WRLCK, 0, SEEK_SET, 0), 0);
    release.open();
    EXPECT_EQ(child.wait(), 0);
    close(other);
}

TEST(LockHandle, does_not_get_into_programs) {
    const int handle = get_db_lock();
    EXPECT_NE(fcntl(handle, F_GETFD) & FD_CLOEXEC, 0);
    const int nested = get_db_lock();
    EXPECT_NE(fcntl(nested, F_GETFD) & FD_CLOEXEC, 0);
    free_db_lock(nested);
    free_db_lock(handle);
}

TEST(LockHandle, excludes_and_is_excluded_by_record_locks) {
    const Gate locked;
    const Gate release;
    support::Process other([&] {
        const int fd = open(support::lock_file, O_RDWR);
        const bool well = lock_reg(fd, F_SETLKW, F_WRLCK, 0, SEEK_SET, 0) == 0;
        locked.open();
        release.wait();
        return well;
    });
    locked.wait();
    std::thread waiter([] { free_db_lock(get_db_lock()); });
    EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
    release.open();
    waiter.join();
    EXPECT_EQ(other.wait(), 0);
}

TEST(Threads, lose_no_update) {
    constexpr int threads = 4;
    constexpr int times = 50;
    support::execute("create table counter(value); insert into counter values(0);");
    const auto count = [&](int number) {
        for (int n = 0; n < times; ++n) {
            // Reading and writing are two statements: only the lock keeps them together.
            const int handle = get_db_lock();
            unsigned long value = 0;
            DB_EXEC_SQL_CHAR_LONG("select value from counter;", &value);
            const std::string update = "update counter set value = " + std::to_string(value + 1) + ";";
            EXPECT_EQ(number % 2 == 0 ? DB_EXEC_SQL_CHAR(update.c_str()) : DbSqlExec(std::string(update).data()), 0);
            free_db_lock(handle);
        }
    };
    std::thread workers[threads];
    for (int number = 0; number < threads; ++number) {
        workers[number] = std::thread(count, number);
    }
    for (std::thread &worker : workers) {
        worker.join();
    }
    EXPECT_EQ(support::value("select value from counter;"), std::to_string(threads * times));
    EXPECT_EQ(rows(), "0");
}

TEST(Threads, that_hold_the_mutex_for_themselves_get_the_lock) {
    const int handle = get_db_lock();
    std::thread writer([] { EXPECT_EQ(DB_EXEC_SQL_CHAR(insertion), 0); });
    EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
    std::atomic<bool> has_mutex{false};
    std::thread holder([&] {
        pthread_mutex_lock(&db_mutex);
        has_mutex = true;
        free_db_lock(get_db_lock());
        pthread_mutex_unlock(&db_mutex);
    });
    EXPECT_TRUE(support::eventually([&] { return has_mutex.load(); }));
    free_db_lock(handle);
    writer.join();
    holder.join();
    EXPECT_EQ(rows(), "1");
}

}  // namespace
