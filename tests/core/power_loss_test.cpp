// What a write leaves on disk when the power fails meanwhile, and backup, restore and reset when it does then or later.
#include <set>

#include "core/killed_writer.h"
#include "support/disk_trace.h"
#include "support/profile.h"

namespace {

using support::Disk;
using support::Files;
using Arrived = support::Disk::Arrived;

const std::vector<std::string> directories{"/etc/config/systemconf/database", "/var/tmpconfig/database"};

/// All that can be left after so many events, but for the many ways in which only some changes arrive: of those a few.
std::set<Files> remains(const Disk &disk, std::size_t events, unsigned chances) {
    std::set<Files> found;
    for (const Arrived arrived : {Arrived::none, Arrived::all, Arrived::names_and_sizes}) {
        found.insert(disk.after(events, arrived));
    }
    for (unsigned seed = 0; seed < chances; ++seed) {
        found.insert(disk.after(events, Arrived::some, seed));
    }
    return found;
}

class PowerLoss : public KilledWriter {
protected:
    /// Runs an operation, and expects the same in a database whenever the power fails afterwards.
    static void expect_kept(int (*operation)(), const char *path, const char *rows) {
        const Disk disk = support::trace_disk(directories, [=] { return operation() == 0; });
        for (const Files &files : remains(disk, disk.events(), 100)) {
            support::put_files(directories, files);
            EXPECT_EQ(content_of(path), rows);
        }
    }

    /// Runs an operation, and expects that a reset mends what a power loss in the middle of it leaves.
    static void expect_mended_by_reset(int (*operation)()) {
        const Disk disk = support::trace_disk(directories, [=] { return operation() == 0; });
        std::set<Files> found;
        for (std::size_t events = 0; events < disk.events(); events += 1 + disk.events() / 20) {
            found.merge(remains(disk, events, 2));
        }
        EXPECT_GT(found.size(), 20U);
        for (const Files &files : found) {
            support::put_files(directories, files);
            ASSERT_EQ(reset_sqlite_db(), 0);
            ASSERT_EQ(content_of(support::main_database), rows_of_the_factory);
        }
    }
};

TEST_F(PowerLoss, after_a_backup_leaves_the_backup) {
    expect_kept(backup_sqlite_db, support::backup_database, committed_rows);
}

TEST_F(PowerLoss, after_a_backup_leaves_the_main_database) {
    expect_kept(backup_sqlite_db, support::main_database, committed_rows);
}

TEST_F(PowerLoss, after_a_restore_leaves_the_restored_database) {
    expect_kept(restore_sqlite_db, support::main_database, rows_of_the_backup);
}

TEST_F(PowerLoss, after_a_reset_leaves_the_factory_database) {
    expect_kept(reset_sqlite_db, support::main_database, rows_of_the_factory);
}

TEST_F(PowerLoss, in_a_restore_is_mended_by_a_reset) {
    expect_mended_by_reset(restore_sqlite_db);
}

TEST_F(PowerLoss, in_a_reset_is_mended_by_another) {
    expect_mended_by_reset(reset_sqlite_db);
}

/// Whether the database is sound, and all rows are of one statement.
bool is_as_before_or_after() {
    const support::Database database;
    const auto urls = database.rows("select distinct url from user_urlinfo;");
    return database.value("pragma integrity_check;") == "ok" && urls.size() == 1;
}

TEST(PowerLossInAWrite, leaves_what_was_there_if_journals_are_synced_in_full) {
    support::execute(
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 30)"
        "insert into user_urlinfo(url, mark) select 'before', zeroblob(1000) from n;");
    const Disk disk = support::trace_disk(directories, [] {
        return DB_EXEC_SQL_CHAR("update user_urlinfo set url = 'after', mark = zeroblob(id % 2 * 1500);") == 0;
    });
    int destroyed = 0;
    for (const std::size_t events : disk.events_before_syncs()) {
        for (const Files &files : remains(disk, events, 50)) {
            support::put_files(directories, files);
            destroyed += is_as_before_or_after() ? 0 : 1;
        }
    }
    EXPECT_EQ(destroyed == 0, support::build_profile.syncs_in_full) << destroyed;
}

}  // namespace
