// The n-th file that SQLite opens fails, for every n. Unlike a planned answer this leaves a real connection behind.
#include <sqlite3.h>

#include <optional>

#include "fault/direct_calls.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/failing_files.h"
#include "support/profile.h"

namespace {

using support::FailingFiles;

class FileFaults : public DirectRoad {
protected:
    /// Makes the call while the n-th file fails.
    static Outcome with_failing_file(std::size_t n, int code, bool expected_to_come_up) {
        std::optional<FailingFiles> files;
        Outcome outcome = make_call([&] { files.emplace(static_cast<int>(n), code); });
        EXPECT_EQ(FailingFiles::failed(), expected_to_come_up);
        return outcome;
    }
};

TEST_P(FileFaults, a_file_that_cannot_be_opened) {
    const std::vector<Outcome> &outcomes = GetParam().file;
    for (std::size_t n = 1; n <= outcomes.size(); ++n) {
        SCOPED_TRACE(n);
        const bool abandons = n == 1 && GetParam().abandons;
        const support::DeliberateLeak leak(abandons);
        EXPECT_EQ(with_failing_file(n, SQLITE_CANTOPEN, true), outcomes[n - 1]);
        if (abandons) {
            expect_connections_left();
        } else {
            expect_nothing_left();
        }
    }
    EXPECT_EQ(with_failing_file(outcomes.size() + 1, SQLITE_CANTOPEN, false), GetParam().success);
    expect_nothing_left();
}

TEST_P(FileFaults, a_file_that_is_busy_once) {
    for (const int code : {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR}) {
        for (std::size_t n = 1; n <= GetParam().file.size(); ++n) {
            SCOPED_TRACE(std::to_string(code) + ", file " + std::to_string(n));
            EXPECT_EQ(with_failing_file(n, code, true), GetParam().success);
            expect_nothing_left();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, FileFaults, ::testing::ValuesIn(direct_calls()), call_name);

TEST(MaintenanceFaults, a_database_that_cannot_be_opened) {
    constexpr bool copies = support::build_profile.copies_through_sqlite;
    support::execute("insert into user_urlinfo(name) values('a');");
    ASSERT_EQ(backup_sqlite_db(), 0);
    const std::string before = support::file_content(support::main_database);
    const int descriptors = support::open_descriptors();
    const sqlite3_int64 memory = sqlite3_memory_used();
    for (const auto operation : {backup_sqlite_db, restore_sqlite_db, reset_sqlite_db}) {
        const FailingFiles files(1, SQLITE_CANTOPEN);
        EXPECT_EQ(operation(), copies ? -1 : 0);
        EXPECT_TRUE(FailingFiles::failed());
        EXPECT_EQ(support::open_descriptors(), descriptors);
        EXPECT_EQ(sqlite3_memory_used(), memory);
        EXPECT_TRUE(support::lock_file_is_free());
    }
    EXPECT_EQ(support::file_content(support::main_database),
              copies ? before : support::file_content(support::factory_database));
}

}  // namespace
