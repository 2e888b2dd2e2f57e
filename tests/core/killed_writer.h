// A writer that was killed, and the journal that it left behind.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "routerdb.h"
#include "support/database.h"

inline constexpr char journal[] = "/etc/config/systemconf/database/myrouter.db-journal";

/// 200 rows of 1000 characters are committed, and partly overwritten by somebody who is gone; the backup has 100 of
/// 400.
class KilledWriter : public ::testing::Test {
protected:
    void SetUp() override;

    /// What the database at `path` holds, after it was checked.
    static std::string content_of(const char *path);

    static constexpr char committed_rows[] = "200 rows of 200000";
    static constexpr char rows_of_the_backup[] = "100 rows of 40000";
    static constexpr char rows_of_the_factory[] = "0 rows of 0";

    std::string committed_;  // the file, as it was before
};

/// Inserts rows whose marks have `size` characters.
void insert_rows(const support::Database &database, int count, int size);

/// Runs statements on the main database in a process that is killed right after, its transaction still open.
void execute_and_be_killed(const std::string &statements);
