// What the service says when something is missing that it cannot do without.
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "support/database.h"
#include "support/service.h"
#include "support/system_log.h"

using support::SystemLog;

namespace {

using Lines = std::vector<std::string>;

/// The lines of a service until it serves.
Lines lines_at_start() {
    const SystemLog log;
    const support::Service service;
    return log.lines();
}

Lines with(const Lines &missing) {
    Lines lines = missing;
    lines.insert(lines.end(), {"30 started", support::told("refused, its header breaks off")});
    return lines;
}

}  // namespace

TEST(SqldSurroundings, are_not_spoken_of_when_they_are_there) {
    EXPECT_EQ(lines_at_start(), with({}));
}

TEST(SqldSurroundings, lack_the_lock_file) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    EXPECT_EQ(lines_at_start(), with({"28 /var/databaselock is missing"}));
}

TEST(SqldSurroundings, lack_both_databases) {
    ASSERT_EQ(unlink(support::main_database), 0);
    ASSERT_EQ(unlink(support::catalogue_database), 0);
    EXPECT_EQ(lines_at_start(), with({"28 /etc/config/systemconf/database/dpilib.db is missing",
                                      "28 /etc/config/systemconf/database/myrouter.db is missing"}));
    EXPECT_FALSE(support::file_exists(support::main_database));
}

TEST(SqldSurroundings, lack_tables) {
    support::execute("drop table qos_rule; drop table wifi1acl;");
    EXPECT_EQ(lines_at_start(),
              with({"28 the table qos_rule is missing in /etc/config/systemconf/database/myrouter.db",
                    "28 the table wifi1acl is missing in /etc/config/systemconf/database/myrouter.db"}));
}

TEST(SqldSurroundings, have_a_database_that_is_none) {
    support::write_file(support::main_database, std::string(1000, 'x'));
    EXPECT_EQ(lines_at_start(),
              with({"28 /etc/config/systemconf/database/myrouter.db cannot be read: file is not a database"}));
}

TEST(SqldSurroundings, have_a_database_that_somebody_keeps) {
    const support::Database other;
    other.execute("begin exclusive;");
    EXPECT_EQ(lines_at_start(),
              with({"28 /etc/config/systemconf/database/myrouter.db cannot be read: database is locked"}));
}
