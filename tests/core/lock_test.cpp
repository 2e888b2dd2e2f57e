// The database lock file: lock_reg, get_db_lock, free_db_lock.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>

#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::build_profile;
using support::Process;
using support::Recorder;
using Lines = std::vector<std::string>;

/// Whether another process can lock one byte of the lock file for writing.
bool byte_is_free(off_t byte) {
    return Process([=] {
               const int fd = open(support::lock_file, O_RDWR);
               return lock_reg(fd, F_SETLK, F_WRLCK, byte, SEEK_SET, 1) == 0;
           }).wait() == 0;
}

class LockReg : public ::testing::Test {
protected:
    LockReg() : fd_(open(support::lock_file, O_RDWR)) {}
    ~LockReg() override { close(fd_); }

    const int fd_;
};

TEST_F(LockReg, locks_the_bytes_it_is_told) {
    EXPECT_EQ(lock_reg(fd_, F_SETLK, F_WRLCK, 10, SEEK_SET, 5), 0);
    EXPECT_TRUE(byte_is_free(9));
    EXPECT_FALSE(byte_is_free(10));
    EXPECT_FALSE(byte_is_free(14));
    EXPECT_TRUE(byte_is_free(15));
}

TEST_F(LockReg, counts_the_offset_from_whence) {
    support::write_file(support::lock_file, std::string(100, 'x'));
    ASSERT_EQ(lseek(fd_, 40, SEEK_SET), 40);
    EXPECT_EQ(lock_reg(fd_, F_SETLK, F_WRLCK, 2, SEEK_CUR, 1), 0);
    EXPECT_EQ(lock_reg(fd_, F_SETLK, F_WRLCK, -2, SEEK_END, 1), 0);
    EXPECT_FALSE(byte_is_free(42));
    EXPECT_FALSE(byte_is_free(98));
    EXPECT_TRUE(byte_is_free(41));
    EXPECT_TRUE(byte_is_free(99));
}

TEST_F(LockReg, length_0_reaches_as_far_as_the_file_may_grow) {
    EXPECT_EQ(lock_reg(fd_, F_SETLK, F_WRLCK, 5, SEEK_SET, 0), 0);
    EXPECT_TRUE(byte_is_free(4));
    EXPECT_FALSE(byte_is_free(5));
    EXPECT_FALSE(byte_is_free(1'000'000'000));
}

TEST_F(LockReg, unlocks) {
    ASSERT_EQ(lock_reg(fd_, F_SETLK, F_WRLCK, 0, SEEK_SET, 0), 0);
    EXPECT_EQ(lock_reg(fd_, F_SETLK, F_UNLCK, 0, SEEK_SET, 0), 0);
    EXPECT_TRUE(byte_is_free(0));
}

TEST_F(LockReg, read_locks_go_together_and_keep_a_writer_out) {
    ASSERT_EQ(lock_reg(fd_, F_SETLK, F_RDLCK, 0, SEEK_SET, 0), 0);
    EXPECT_FALSE(byte_is_free(0));
    EXPECT_EQ(Process([] {
                  const int fd = open(support::lock_file, O_RDWR);
                  return lock_reg(fd, F_SETLK, F_RDLCK, 0, SEEK_SET, 0) == 0;
              }).wait(),
              0);
}

TEST_F(LockReg, gives_the_result_and_the_errno_of_fcntl) {
    const int handle = get_db_lock();
    EXPECT_EQ(Process([] {
                  const int fd = open(support::lock_file, O_RDWR);
                  const int result = lock_reg(fd, F_SETLK, F_WRLCK, 0, SEEK_SET, 0);
                  return result == -1 && (errno == EAGAIN || errno == EACCES);
              }).wait(),
              0);
    free_db_lock(handle);
    EXPECT_EQ(lock_reg(-1, F_SETLK, F_WRLCK, 0, SEEK_SET, 0), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(lock_reg(fd_, F_SETLK, F_WRLCK, -1, SEEK_SET, 0), -1);
    EXPECT_EQ(errno, EINVAL);
}

TEST_F(LockReg, asking_changes_nothing) {
    EXPECT_EQ(lock_reg(fd_, F_GETLK, F_WRLCK, 0, SEEK_SET, 0), 0);
    EXPECT_TRUE(byte_is_free(0));
}

TEST(GetDbLock, takes_a_write_lock_on_the_whole_file) {
    int handle = -1;
    {
        Recorder recorder;
        handle = get_db_lock();
        EXPECT_EQ(recorder.calls(), (Lines{"open lock file", "lock"}));
    }
    EXPECT_FALSE(support::lock_file_is_free());
    EXPECT_EQ(fcntl(handle, F_GETFL) & O_ACCMODE, O_RDWR);
    EXPECT_EQ(free_db_lock(handle), 0);
}

TEST(GetDbLock, waits_for_another_process) {
    const support::Gate locked;
    const support::Gate release;
    Process holder([&] {
        const int handle = get_db_lock();
        locked.open();
        release.wait();
        return free_db_lock(handle) == 0;
    });
    locked.wait();
    Process waiter([] { return free_db_lock(get_db_lock()) == 0; });
    EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
    release.open();
    EXPECT_EQ(waiter.wait(), 0);
    EXPECT_EQ(holder.wait(), 0);
}

TEST(GetDbLock, is_gone_with_a_process_that_is_killed) {
    const support::Gate locked;
    Process holder([&] {
        get_db_lock();
        locked.open();
        return pause() == 0;
    });
    locked.wait();
    EXPECT_FALSE(support::lock_file_is_free());
    kill(holder.id(), SIGKILL);
    EXPECT_EQ(holder.wait(), 128 + SIGKILL);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(GetDbLock, fails_without_the_file_and_does_not_create_it) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    const int descriptors = support::open_descriptors();
    const support::Streams::Text text = support::streams_of([] { EXPECT_EQ(get_db_lock(), -1); });
    EXPECT_EQ(text.error, support::cannot_open_lock_file);
    EXPECT_EQ(text.output, "");
    EXPECT_FALSE(support::file_exists(support::lock_file));
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(GetDbLock, gives_a_handle_also_when_the_lock_is_refused) {
    Recorder recorder;
    recorder.answer("fcntl", {EDEADLK});
    if (build_profile.locks_threads) {
        recorder.answer("fcntl", {EDEADLK, EDEADLK});  // who has it, and waiting for it
    }
    const int handle = get_db_lock();
    EXPECT_GE(handle, 0);
    EXPECT_TRUE(support::lock_file_is_free());
    free_db_lock(handle);
}

TEST(GetDbLock, does_not_exclude_the_process_that_holds_it) {
    const int first = get_db_lock();
    const int second = get_db_lock();
    EXPECT_GE(second, 0);
    EXPECT_NE(second, first);
    free_db_lock(second);
    free_db_lock(first);
}

TEST(FreeDbLock, unlocks_and_closes) {
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    const int handle = get_db_lock();
    EXPECT_EQ(free_db_lock(handle), 0);
    Lines expected{"open lock file", "lock", "unlock", "close lock file"};
    if (build_profile.locks_threads) {
        expected.insert(expected.begin() + 1, "lock");  // again, to see whether the handle has it
    }
    EXPECT_EQ(recorder.calls(), expected);
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(FreeDbLock, drops_the_lock_of_every_handle_of_the_process_unless_each_counts) {
    const int first = get_db_lock();
    free_db_lock(get_db_lock());
    EXPECT_EQ(support::lock_file_is_free(), !build_profile.locks_threads);
    free_db_lock(first);
}

TEST(FreeDbLock, closing_another_descriptor_of_the_file_drops_the_lock_unless_each_counts) {
    const int handle = get_db_lock();
    close(open(support::lock_file, O_RDONLY));
    EXPECT_EQ(support::lock_file_is_free(), !build_profile.locks_threads);
    free_db_lock(handle);
}

TEST(FreeDbLock, returns_0_whatever_it_is_given) {
    EXPECT_EQ(free_db_lock(-1), 0);
    EXPECT_EQ(free_db_lock(9999), 0);
}

}  // namespace
