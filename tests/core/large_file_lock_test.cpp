// lock_reg called by a program that is built with _FILE_OFFSET_BITS=64. On 32 bits such a program has offsets twice as
// wide as the library's and, on the GNU C library, other numbers for the three commands.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "routerdb.h"
#include "support/database.h"
#include "support/process.h"

namespace {

static_assert(sizeof(off_t) == 8, "this file is compiled with _FILE_OFFSET_BITS=64");

/// Whether another process finds one byte of the lock file free.
bool byte_is_free(off_t byte) {
    return support::Process([byte] {
               struct flock lock {};
               lock.l_type = F_WRLCK;
               lock.l_whence = SEEK_SET;
               lock.l_start = byte;
               lock.l_len = 1;
               return fcntl(open(support::lock_file, O_RDWR), F_GETLK, &lock) == 0 && lock.l_type == F_UNLCK;
           }).wait() == 0;
}

class LargeFileCaller : public testing::TestWithParam<int> {
protected:
    const int fd_ = open(support::lock_file, O_RDWR);
};

TEST_P(LargeFileCaller, locks_the_bytes_that_it_names) {
    ASSERT_EQ(lock_reg(fd_, GetParam(), F_WRLCK, 10, SEEK_SET, 5), 0);
    EXPECT_TRUE(byte_is_free(9));
    EXPECT_FALSE(byte_is_free(10));
    EXPECT_FALSE(byte_is_free(14));
    EXPECT_TRUE(byte_is_free(15));
}

TEST_P(LargeFileCaller, locks_and_unlocks_the_whole_file) {
    ASSERT_EQ(lock_reg(fd_, GetParam(), F_WRLCK, 0, SEEK_SET, 0), 0);
    EXPECT_FALSE(byte_is_free(0));
    EXPECT_FALSE(byte_is_free(5'000'000'000));
    ASSERT_EQ(lock_reg(fd_, GetParam(), F_UNLCK, 0, SEEK_SET, 0), 0);
    EXPECT_TRUE(byte_is_free(0));
}

TEST_P(LargeFileCaller, counts_back_from_the_end) {
    support::write_file(support::lock_file, std::string(100, 'x'));
    ASSERT_EQ(lock_reg(fd_, GetParam(), F_WRLCK, -2, SEEK_END, 1), 0);
    EXPECT_TRUE(byte_is_free(97));
    EXPECT_FALSE(byte_is_free(98));
    EXPECT_TRUE(byte_is_free(99));
}

INSTANTIATE_TEST_SUITE_P(, LargeFileCaller, testing::Values(F_SETLK, F_SETLKW),
                         [](const auto &test) { return test.param == F_SETLK ? "F_SETLK" : "F_SETLKW"; });

TEST(LargeFileCallers, exclude_each_other_and_those_of_the_usual_width) {
    const int handle = get_db_lock();
    EXPECT_EQ(support::Process([] {
                  const int result = lock_reg(open(support::lock_file, O_RDWR), F_SETLK, F_WRLCK, 0, SEEK_SET, 0);
                  return result == -1 && (errno == EAGAIN || errno == EACCES);
              }).wait(),
              0);
    EXPECT_EQ(lock_reg(handle, F_GETLK, F_WRLCK, 0, SEEK_SET, 0), 0);
    EXPECT_EQ(free_db_lock(handle), 0);
    EXPECT_TRUE(byte_is_free(0));
}

}  // namespace
