// The connection that is kept beside what processes do: children, threads, programs, descriptors that are closed behind
// its back, rights that are given up, a disk that is mounted anew, and the end.
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <thread>

#include "core/kept.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/process.h"
#include "support/recorder.h"

namespace {

using kept::keep_connection;
using kept::name_device;
using kept::opened_by_reading;
using kept::read_name;
using support::main_database;
using support::Process;

class KeptConnectionOfAProcess : public testing::Test {
protected:
    KeptConnectionOfAProcess() {
        name_device("first");
        keep_connection();
    }
};

TEST_F(KeptConnectionOfAProcess, is_left_alone_by_its_children) {
    const int parents = kept::descriptor();
    for (int child = 0; child < 10; ++child) {
        Process process([=] {
            for (int call = 0; call < 20; ++call) {
                EXPECT_EQ(read_name(), "first");
            }
            // One of its own beside that of its parent, which has stayed open.
            const std::vector<int> own = kept::descriptors();
            EXPECT_EQ(own.size(), 2U);
            EXPECT_EQ(own.front(), parents);
            std::exit(testing::Test::HasFailure() ? 1 : 0);  // which closes what is its own
            return false;
        });
        EXPECT_EQ(opened_by_reading(), 0U);
        EXPECT_EQ(process.wait(), 0);
        EXPECT_EQ(kept::descriptor(), parents);
        EXPECT_EQ(opened_by_reading(), 0U);
    }
}

TEST_F(KeptConnectionOfAProcess, reads_beside_children_that_write) {
    Process writer([] {
        for (int round = 0; round < 50; ++round) {
            name_device("second");
            name_device("first");
        }
        return true;
    });
    while (!writer.has_ended()) {
        const std::string name = read_name();
        EXPECT_TRUE(name == "first" || name == "second") << name;
    }
    EXPECT_EQ(writer.wait(), 0);
    EXPECT_EQ(read_name(), "first");
}

TEST_F(KeptConnectionOfAProcess, is_used_by_one_thread_at_a_time) {
    constexpr int threads = 4;
    std::atomic<int> wrong{0};
    std::thread readers[threads];
    for (std::thread &reader : readers) {
        reader = std::thread([&] {
            for (int call = 0; call < 100; ++call) {
                const std::string name = read_name();
                wrong += name == "first" || name == "second" ? 0 : 1;
            }
        });
    }
    for (int round = 0; round < 20; ++round) {
        name_device(round % 2 == 0 ? "second" : "first");
    }
    for (std::thread &reader : readers) {
        reader.join();
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(kept::descriptors().size(), 1U);
    EXPECT_EQ(opened_by_reading(), 0U);
}

TEST_F(KeptConnectionOfAProcess, is_not_waited_for_by_another_thread) {
    support::Recorder recorder;
    std::size_t opened = 0;
    recorder.watch([&](const std::string &line) {
        if (line == "sqlite3_step" && opened == 0) {
            std::thread([&] { opened = opened_by_reading(); }).join();
        }
    });
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(opened, 1U);
    EXPECT_EQ(opened_by_reading(), 0U);
}

/// Every number that is open is closed, as daemons do when they start.
void close_everything() {
    for (int fd = 3; fd < 256; ++fd) {
        close(fd);
    }
}

/// Puts a file in the place of a descriptor.
void open_in_place(int fd, const char *path, int flags) {
    const int opened = open(path, flags | O_CLOEXEC);
    ASSERT_GE(opened, 0);
    if (opened != fd) {
        ASSERT_EQ(dup2(opened, fd), fd);
        close(opened);
    }
}

TEST_F(KeptConnectionOfAProcess, is_forgotten_when_its_descriptor_is_closed) {
    for (int round = 0; round < 10; ++round) {
        close_everything();
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(opened_by_reading(), 0U);
    }
}

TEST_F(KeptConnectionOfAProcess, does_not_touch_the_file_that_has_its_descriptor) {
    constexpr char note[] = "/tmp/note";
    for (int round = 0; round < 10; ++round) {
        const int fd = kept::descriptor();
        close_everything();
        support::write_file(note, "somebody else's");
        open_in_place(fd, note, O_RDWR);
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(read_name(), "first");
        struct stat file {};
        struct stat behind {};
        ASSERT_EQ(stat(note, &file), 0);
        ASSERT_EQ(fstat(fd, &behind), 0) << "it was closed";
        EXPECT_EQ(behind.st_ino, file.st_ino);
        EXPECT_EQ(support::file_content(note), "somebody else's");
    }
}

/// Whether another process could lock a file.
bool others_can_lock(const char *path) {
    return Process([=] {
               const int fd = open(path, O_RDWR);
               return lock_reg(fd, F_SETLK, F_WRLCK, 0, SEEK_SET, 0) == 0;
           }).wait() == 0;
}

TEST_F(KeptConnectionOfAProcess, leaves_the_locks_alone_of_a_database_that_has_its_descriptor) {
    constexpr char copy[] = "/tmp/copy.db";
    support::write_file(copy, support::file_content(main_database));
    const int fd = kept::descriptor();
    close(fd);
    open_in_place(fd, copy, O_RDWR);
    ASSERT_EQ(lock_reg(fd, F_SETLK, F_WRLCK, 0, SEEK_SET, 0), 0);
    EXPECT_EQ(read_name(), "first");
    EXPECT_FALSE(others_can_lock(copy));
}

TEST_F(KeptConnectionOfAProcess, does_not_close_the_database_of_somebody_who_has_its_descriptor) {
    const int fd = kept::descriptor();
    open_in_place(fd, main_database, O_RDWR);
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(fcntl(fd, F_GETFL) & O_ACCMODE, O_RDWR);
    ASSERT_EQ(rename(main_database, "/tmp/renamed.db"), 0);
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_EQ(read_name(), "");
    EXPECT_EQ(fcntl(fd, F_GETFL) & O_ACCMODE, O_RDWR);
}

TEST_F(KeptConnectionOfAProcess, is_not_kept_where_its_descriptor_cannot_be_told) {
    close_everything();
    for (int fd = 3; fd < 300;) {
        fd = open("/dev/null", O_RDONLY | O_CLOEXEC);
        ASSERT_GE(fd, 0);
    }
    for (int call = 0; call < 40; ++call) {
        EXPECT_EQ(read_name(), "first");
        EXPECT_NE(opened_by_reading(), 0U);
    }
}

TEST_F(KeptConnectionOfAProcess, is_told_from_others_that_read_the_file) {
    const int own = kept::descriptor();
    const int others[] = {open(main_database, O_RDONLY), open(main_database, O_RDONLY), open(main_database, O_RDWR)};
    close(own);
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(opened_by_reading(), 0U);
    for (const int fd : others) {
        close(fd);
    }
    EXPECT_EQ(opened_by_reading(), 0U);
}

TEST_F(KeptConnectionOfAProcess, is_not_used_after_the_rights_are_gone) {
    Process process([] {
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(opened_by_reading(), 0U);
        EXPECT_EQ(chmod(main_database, 0), 0);
        EXPECT_EQ(read_name(), "");
        EXPECT_EQ(chmod(main_database, 0644), 0);
        EXPECT_EQ(read_name(), "first");
        return !testing::Test::HasFailure();
    });
    EXPECT_EQ(process.wait(), 0);
}

#ifndef __SANITIZE_THREAD__  // which has a thread of its own: a process of several cannot have mounts of its own

/// Gives this process a mount of its own over a directory.
bool mount_again(const char *directory) {
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && mount(directory, directory, nullptr, MS_BIND, nullptr) == 0;
}

/// Fails while somebody has a file open there that could be written.
bool make_read_only(const char *directory) {
    return mount("none", directory, nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY | MS_NOSUID | MS_NODEV, nullptr) == 0;
}

TEST_F(KeptConnectionOfAProcess, lets_its_disk_become_read_only_and_reads_on) {
    constexpr char directory[] = "/etc/config/systemconf/database";
    Process process([=] {
        EXPECT_TRUE(mount_again(directory));
        const int writer = open(main_database, O_RDWR);
        EXPECT_FALSE(make_read_only(directory));
        EXPECT_EQ(errno, EBUSY);
        close(writer);
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(opened_by_reading(), 0U);
        EXPECT_TRUE(make_read_only(directory));
        EXPECT_EQ(opened_by_reading(), 0U);
        EXPECT_EQ(read_name(), "first");
        return !testing::Test::HasFailure();
    });
    EXPECT_EQ(process.wait(), 0);
}

#endif

}  // namespace
