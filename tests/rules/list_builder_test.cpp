// The list builders: what they call, wait for, say and leave.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <set>
#include <thread>

#include "rules/golden/golden.h"
#include "support/database.h"
#include "support/exported_names.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using golden::Table;
using support::difference;
using support::Recorder;

using Lines = std::vector<std::string>;

constexpr char database_directory[] = "/etc/config/systemconf/database";

class Builder : public testing::TestWithParam<Table> {
protected:
    /// Builds into a buffer that holds odd bytes before.
    static std::string build(const std::string &sql = GetParam().list_query, std::size_t size = GetParam().list_size) {
        std::string list(size, '\x5a');
        GetParam().build(list.data(), sql.c_str());
        return list;
    }

    static std::string list_of_none() { return std::string(GetParam().list_size, '\0'); }

    static void insert(int rows) { support::execute(GetParam().inserts(rows)); }
    static std::string records(int rows) { return GetParam().records(rows); }

    static void expect_nothing_held(int descriptors) {
        EXPECT_TRUE(support::lock_file_is_free());
        EXPECT_EQ(support::open_descriptors(), descriptors);
    }
};

TEST_P(Builder, no_rows_leave_the_whole_list_zero) {
    EXPECT_EQ(difference(list_of_none(), build()), "");
}

TEST_P(Builder, a_full_table_fills_the_list) {
    insert(128);
    EXPECT_EQ(difference(support::list_of(records(128), 128, GetParam().list_size), build()), "");
}

TEST_P(Builder, more_rows_than_a_list_holds_are_cut_where_lists_are_capped) {
    constexpr int listed = support::build_profile.caps_lists ? 128 : 200;
    insert(200);
    const std::size_t room = 4 + 201 * GetParam().record_size;
    const std::string untouched(room - 4 - listed * GetParam().record_size, '\x5a');
    const Recorder recorder;
    errno = 0;
    const std::string list = build(GetParam().list_query, room);
    const int reason = errno;
    EXPECT_EQ(difference(support::list_of(records(listed) + untouched, listed, room), list), "");
    if (support::build_profile.caps_lists) {
        EXPECT_EQ(reason, EOVERFLOW);
        const Lines log = recorder.calls({"syslog"});
        ASSERT_EQ(log.size(), 1U);
        const std::size_t name_end = log[0].find(' ', std::string("syslog 3 ").size());
        EXPECT_EQ(log[0].substr(name_end), " has more rows than a list of 128 takes, the rest is left out\n");
    }
}

TEST_P(Builder, runs_the_query_that_it_is_given) {
    insert(3);
    EXPECT_EQ(difference(support::list_of(GetParam().record(2), 1, GetParam().list_size),
                         build("select * from " + GetParam().name + " where id='2';")),
              "");
}

TEST_P(Builder, a_text_without_a_statement_has_no_rows) {
    insert(1);
    EXPECT_EQ(difference(list_of_none(), build("")), "");
    std::string list(GetParam().list_size, '\x5a');
    GetParam().build(list.data(), nullptr);
    EXPECT_EQ(difference(list_of_none(), list), "");
}

TEST_P(Builder, calls_in_a_fixed_order) {
    insert(2);
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    build();
    EXPECT_EQ(recorder.calls(), (Lines{
                                    "draw",
                                    "open lock file",
                                    "lock",
                                    "sqlite3_open /etc/config/systemconf/database/myrouter.db",
                                    "sqlite3_prepare_v2 " + GetParam().list_query,
                                    "sqlite3_step",
                                    "sqlite3_step",
                                    "sqlite3_step",
                                    "sqlite3_finalize",
                                    "sqlite3_close",
                                    "unlock",
                                    "close lock file",
                                }));
    expect_nothing_held(descriptors);
}

TEST_P(Builder, sleeps_grow_by_five_through_open_prepare_and_first_step) {
    insert(1);
    Recorder recorder;
    recorder.answer("draw", {0});
    recorder.answer("sqlite3_open", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.answer("sqlite3_prepare_v2", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    EXPECT_EQ(difference(support::list_of(records(1), 1, GetParam().list_size), build()), "");
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{56, 61, 66, 71, 76, 81, 86, 91, 96}));
}

TEST_P(Builder, first_sleep_is_56_to_155_microseconds_long) {
    for (const auto &[drawn, sleep] :
         std::vector<std::pair<int, unsigned>>{{0, 56}, {1073741824, 106}, {2147483647, 155}}) {
        Recorder recorder;
        recorder.answer("draw", {drawn});
        recorder.answer("sqlite3_open", {SQLITE_BUSY});
        build();
        EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{sleep});
    }
}

TEST_P(Builder, anything_but_a_row_ends_the_rows) {
    for (const int code : {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR, SQLITE_CORRUPT}) {
        Recorder recorder;
        recorder.answer("sqlite3_step", {SQLITE_ROW, SQLITE_ROW, code});
        EXPECT_EQ(support::word(build(), 0), 2U);
        EXPECT_EQ(recorder.calls({"sqlite3_step", "usleep"}), (Lines{"sqlite3_step", "sqlite3_step", "sqlite3_step"}));
    }
}

TEST_P(Builder, waits_for_a_database_that_another_process_has_locked) {
    insert(1);
    const support::Database other;
    other.execute("begin exclusive;");
    std::thread owner([&] {
        usleep(100'000);
        other.execute("commit;");
    });
    const std::string list = build();
    owner.join();
    EXPECT_EQ(difference(support::list_of(records(1), 1, GetParam().list_size), list), "");
}

TEST_P(Builder, without_the_lock_file_draws_its_delay_and_leaves_the_list_cleared) {
    insert(1);
    unlink(support::lock_file);
    const Recorder recorder;
    std::string list;
    const auto streams = support::streams_of([&] { list = build(); });
    EXPECT_EQ(streams.output, GetParam().messages.without_lock_file.output);
    EXPECT_EQ(streams.error, GetParam().messages.without_lock_file.error);
    EXPECT_EQ(difference(list_of_none(), list), "");
    EXPECT_EQ(recorder.calls(), (Lines{"draw", "open lock file"}));
    EXPECT_FALSE(support::file_exists(support::lock_file));
}

TEST_P(Builder, a_database_that_cannot_be_opened_leaves_the_list_cleared) {
    rename(database_directory, "/etc/elsewhere");
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    std::string list;
    const auto streams = support::streams_of([&] { list = build(); });
    EXPECT_EQ(streams.output, GetParam().messages.without_database.output);
    EXPECT_EQ(streams.error, GetParam().messages.without_database.error);
    EXPECT_EQ(difference(list_of_none(), list), "");
    EXPECT_EQ(recorder.calls({"sqlite3", "usleep", "lock", "unlock", "close"}),
              (Lines{"lock", "sqlite3_open /etc/config/systemconf/database/myrouter.db", "sqlite3_close", "unlock",
                     "close lock file"}));
    expect_nothing_held(descriptors);
}

TEST_P(Builder, a_query_that_cannot_be_prepared_leaves_the_list_cleared) {
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    std::string list;
    const auto streams = support::streams_of([&] { list = build("select * from nowhere;"); });
    EXPECT_EQ(streams.output, GetParam().messages.without_table.output);
    EXPECT_EQ(streams.error, GetParam().messages.without_table.error);
    EXPECT_EQ(difference(list_of_none(), list), "");
    EXPECT_EQ(recorder.calls({"sqlite3_close", "usleep", "lock", "unlock", "close"}),
              (Lines{"lock", "sqlite3_close", "unlock", "close lock file"}));
    expect_nothing_held(descriptors);
}

TEST_P(Builder, holds_the_lock_file_while_it_reads) {
    insert(1);
    Lines locked;  // before these calls
    Recorder recorder;
    recorder.watch([&](const std::string &call) {
        if (!support::lock_file_is_free()) {
            locked.push_back(call);
        }
    });
    build();
    EXPECT_EQ(locked, (Lines{"sqlite3_open /etc/config/systemconf/database/myrouter.db",
                             "sqlite3_prepare_v2 " + GetParam().list_query, "sqlite3_step", "sqlite3_step",
                             "sqlite3_finalize", "sqlite3_close", "unlock"}));
}

INSTANTIATE_TEST_SUITE_P(, Builder, testing::ValuesIn(golden::tables()));

TEST(ListBuilders, are_those_of_the_tables_that_the_tests_know) {
    std::set<const void *> known;
    for (const Table &table : golden::tables()) {
        known.insert(table.build.function());
    }
    std::size_t exported = 0;
    for (const std::string &name : support::exported_names("Get\\w+ListInServer")) {
        EXPECT_EQ(known.count(dlsym(RTLD_DEFAULT, name.c_str())), 1U) << name << " has no golden data";
        ++exported;
    }
    EXPECT_EQ(exported, known.size());
}

}  // namespace
