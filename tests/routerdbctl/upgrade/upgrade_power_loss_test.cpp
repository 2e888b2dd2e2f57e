// What a power loss leaves of an upgrade: the database as it was or as it was to be, and the next start goes on from
// there.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "support/database.h"
#include "support/disk_trace.h"
#include "support/process.h"

namespace {

using support::Disk;
using support::Files;
using Arrived = support::Disk::Arrived;

const std::vector<std::string> directories{"/etc/config/systemconf/database"};

constexpr char old_rows[] = "old 40 rows of 36000";
constexpr char new_rows[] = "new 40 rows of 36000";

bool upgrade() {
    support::Process program([] {
        setenv("ASAN_OPTIONS", "detect_leaks=0", 1);  // a sanitizer cannot look for them in a process that is traced
        return support::become({ROUTERDBCTL, "--quiet", "db", "upgrade"});
    });
    return program.wait() == 0;
}

/// What a database holds, after it was checked, and whether it has the new column.
std::string content_of(const char *path) {
    const support::Database database(path);
    EXPECT_EQ(database.value("pragma integrity_check;"), "ok");
    return database.value(
        "select iif((select count(*) from pragma_table_info('user_urlinfo') where name = 'color'), 'new ', 'old ') || "
        "count(*) || ' rows of ' || sum(length(mark)) from user_urlinfo;");
}

class UpgradePowerLoss : public ::testing::Test {
protected:
    void SetUp() override {
        support::execute(
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 40)"
            "insert into user_urlinfo(mark) select hex(randomblob(450)) from n;");
        support::Database(support::factory_database).execute("alter table user_urlinfo add column color;");
    }
};

TEST_F(UpgradePowerLoss, at_any_moment_leaves_the_old_or_the_new_database) {
    ASSERT_EQ(content_of(support::main_database), old_rows);
    const Disk disk = support::trace_disk(directories, upgrade);
    std::set<Files> found;
    for (std::size_t events = 0; events <= disk.events(); ++events) {
        for (const Arrived arrived : {Arrived::none, Arrived::all, Arrived::names_and_sizes}) {
            found.insert(disk.after(events, arrived));
        }
        for (unsigned seed = 0; seed < 3; ++seed) {
            found.insert(disk.after(events, Arrived::some, seed));
        }
    }
    int old = 0;
    int renewed = 0;
    int taken_up = 0;
    for (const Files &files : found) {
        support::put_files(directories, files);
        const std::string content = content_of(support::main_database);
        ASSERT_TRUE(content == old_rows || content == new_rows) << content;
        ASSERT_TRUE(content == old_rows || files.count("/etc/config/systemconf/database/myrouter.db.before-1") == 1);
        (content == old_rows ? old : renewed) += 1;
        if (++taken_up % 8 == 0 || content == new_rows) {  // the next start
            ASSERT_TRUE(upgrade());
            ASSERT_EQ(content_of(support::main_database), new_rows);
            ASSERT_FALSE(support::file_exists("/etc/config/systemconf/database/myrouter.db.upgrade"));
        }
    }
    EXPECT_GT(old, 50);
    EXPECT_GT(renewed, 0);
}

TEST_F(UpgradePowerLoss, afterwards_leaves_the_new_database_and_the_old_one_beside_it) {
    const Disk disk = support::trace_disk(directories, upgrade);
    for (unsigned seed = 0; seed < 100; ++seed) {
        support::put_files(directories, disk.after(disk.events(), Arrived::some, seed));
        ASSERT_EQ(content_of(support::main_database), new_rows);
        ASSERT_EQ(content_of("/etc/config/systemconf/database/myrouter.db.before-1"), old_rows);
    }
}

}  // namespace
