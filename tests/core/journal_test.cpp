// Backup, restore and reset beside the journal of a writer that was killed.
#include "core/killed_writer.h"

namespace {

TEST_F(KilledWriter, does_not_spoil_a_restored_database) {
    ASSERT_EQ(restore_sqlite_db(), 0);
    EXPECT_FALSE(support::file_exists(journal));
    EXPECT_EQ(content_of(support::main_database), rows_of_the_backup);
}

TEST_F(KilledWriter, does_not_spoil_a_reset_database) {
    ASSERT_EQ(reset_sqlite_db(), 0);
    EXPECT_FALSE(support::file_exists(journal));
    EXPECT_EQ(content_of(support::main_database), rows_of_the_factory);
}

TEST_F(KilledWriter, leaves_the_backup_without_its_half_done_work) {
    ASSERT_EQ(backup_sqlite_db(), 0);
    EXPECT_EQ(content_of(support::backup_database), committed_rows);
    EXPECT_EQ(content_of(support::main_database), committed_rows);
}

TEST_F(KilledWriter, is_rolled_back_by_the_next_statement) {
    EXPECT_EQ(GET_DB_SQL_INT_COUNT_ROUTE("select count(*) from user_urlinfo where length(mark) = 1000;"), 200);
    EXPECT_EQ(content_of(support::main_database), committed_rows);
}

}  // namespace
