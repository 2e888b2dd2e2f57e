// The traced disk that tests of power losses go by: what it keeps, and what it loses.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <set>

#include "support/disk_trace.h"

namespace {

using support::Disk;
using support::Files;
using Arrived = support::Disk::Arrived;

const std::string directory = "/var/tmpconfig/database";
constexpr char old_file[] = "/var/tmpconfig/database/old";
constexpr char new_file[] = "/var/tmpconfig/database/new";

/// What a power loss leaves in the end, with nothing arrived that was not synced.
Files synced_by(const std::function<bool()> &action) {
    support::put_files({directory}, {{old_file, "old"}});
    const Disk disk = support::trace_disk({directory}, action);
    return disk.after(disk.events(), Arrived::none);
}

bool write_bytes(const char *path, const char *bytes, int flags, bool syncs) {
    const int fd = open(path, O_WRONLY | flags, 0644);
    const auto size = static_cast<ssize_t>(std::strlen(bytes));
    const bool well = write(fd, bytes, static_cast<std::size_t>(size)) == size && (!syncs || fsync(fd) == 0);
    return close(fd) == 0 && well;
}

bool sync_directory() {
    const int fd = open(directory.c_str(), O_RDONLY);
    return fsync(fd) == 0 && close(fd) == 0;
}

TEST(Disk, loses_what_was_not_synced) {
    EXPECT_EQ(synced_by([] { return write_bytes(old_file, "new", O_TRUNC, false); }), (Files{{old_file, "old"}}));
    EXPECT_EQ(synced_by([] { return write_bytes(new_file, "new", O_CREAT, false); }), (Files{{old_file, "old"}}));
    EXPECT_EQ(synced_by([] { return unlink(old_file) == 0; }), (Files{{old_file, "old"}}));
    EXPECT_EQ(synced_by([] { return std::rename(old_file, new_file) == 0; }), (Files{{old_file, "old"}}));
}

TEST(Disk, keeps_contents_with_their_file_and_names_with_their_directory) {
    EXPECT_EQ(synced_by([] { return write_bytes(old_file, "newer", 0, true); }), (Files{{old_file, "newer"}}));
    EXPECT_EQ(synced_by([] { return write_bytes(new_file, "new", O_CREAT, true); }), (Files{{old_file, "old"}}));
    EXPECT_EQ(synced_by([] { return write_bytes(new_file, "new", O_CREAT, false) && sync_directory(); }),
              (Files{{old_file, "old"}, {new_file, ""}}));
    EXPECT_EQ(synced_by([] { return std::rename(old_file, new_file) == 0 && sync_directory(); }),
              (Files{{new_file, "old"}}));
    EXPECT_EQ(synced_by([] { return unlink(old_file) == 0 && sync_directory(); }), Files());
}

TEST(Disk, keeps_everything_with_everything) {
    EXPECT_EQ(synced_by([] {
                  sync();
                  return write_bytes(new_file, "new", O_CREAT, false);
              }),
              (Files{{old_file, "old"}}));
    EXPECT_EQ(synced_by([] {
                  const bool well = write_bytes(new_file, "new", O_CREAT, false) && unlink(old_file) == 0;
                  sync();
                  return well;
              }),
              (Files{{new_file, "new"}}));
}

TEST(Disk, keeps_each_block_or_its_beginning_or_nothing_of_it) {
    const std::string blocks = std::string(512, 'a') + std::string(512, 'b');
    support::put_files({directory}, {{old_file, std::string(1024, '-')}});
    const Disk disk = support::trace_disk({directory}, [&] { return write_bytes(old_file, blocks.c_str(), 0, false); });
    std::set<std::string> beginnings;
    std::set<std::string> ends;
    for (unsigned seed = 0; seed < 100; ++seed) {
        const Files files = disk.after(disk.events(), Arrived::some, seed);
        beginnings.insert({files.at(old_file)[0], files.at(old_file)[512]});
        ends.insert({files.at(old_file)[0], files.at(old_file)[511]});
    }
    EXPECT_EQ(beginnings, (std::set<std::string>{"--", "-b", "a-", "ab"}));
    EXPECT_EQ(ends, (std::set<std::string>{"--", "a-", "aa"}));
}

}  // namespace
