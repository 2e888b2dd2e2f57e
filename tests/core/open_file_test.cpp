// A file as one of its descriptors shows it: what counts as a change, and from when on its times tell.
#include "core/open_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/database.h"

namespace {

using routerdb::FileState;
using routerdb::OpenFile;
using support::main_database;

FileState settled_state() {
    return {{8192, 1000, 5, 1000, 7, 3}, true};
}

TEST(FileState, is_unchanged_where_nothing_differs) {
    EXPECT_TRUE(routerdb::is_unchanged(settled_state(), settled_state()));
}

TEST(FileState, is_another_one_where_anything_differs) {
    for (int mark = 0; mark < 6; ++mark) {
        FileState now = settled_state();
        ++now.marks[mark];
        EXPECT_FALSE(routerdb::is_unchanged(settled_state(), now)) << mark;
    }
}

/// The next change could have the same times.
TEST(FileState, says_nothing_as_long_as_the_last_change_is_recent) {
    FileState before = settled_state();
    before.settled = false;
    EXPECT_FALSE(routerdb::is_unchanged(before, settled_state()));
}

class AnOpenFile : public testing::Test {
protected:
    AnOpenFile() {
        const routerdb::ReadingDescriptors before(main_database);
        descriptor_ = open(main_database, O_RDONLY | O_CLOEXEC);
        EXPECT_TRUE(file_.find(main_database, before));
    }

    FileState look() const {
        FileState state;
        EXPECT_TRUE(file_.look(state));
        return state;
    }

    int descriptor_;
    OpenFile file_;
};

TEST_F(AnOpenFile, that_was_just_written_is_not_settled) {
    support::execute("create table just_written(n);");
    EXPECT_FALSE(look().settled);
}

TEST_F(AnOpenFile, shows_how_often_it_was_changed) {
    const FileState before = look();
    support::execute("create table another(n);");
    EXPECT_EQ(look().marks[5], before.marks[5] + 1);
    EXPECT_FALSE(routerdb::is_unchanged(before, look()));
}

TEST_F(AnOpenFile, cannot_be_told_from_another_one_that_came_at_the_same_time) {
    const routerdb::ReadingDescriptors before(main_database);
    const int others[] = {open(main_database, O_RDONLY | O_CLOEXEC), open(main_database, O_RDONLY | O_CLOEXEC)};
    EXPECT_FALSE(OpenFile().find(main_database, before));
    close(others[0]);
    close(others[1]);
}

TEST_F(AnOpenFile, is_told_from_those_that_write) {
    const routerdb::ReadingDescriptors before(main_database);
    const int writer = open(main_database, O_RDWR | O_CLOEXEC);
    const int reader = open(main_database, O_RDONLY | O_CLOEXEC);
    OpenFile file;
    ASSERT_TRUE(file.find(main_database, before));
    close(writer);
    EXPECT_TRUE(file.is_open());
    close(reader);
    EXPECT_FALSE(file.is_open());
}

}  // namespace
