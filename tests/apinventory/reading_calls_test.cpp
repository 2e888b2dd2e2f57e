// What the functions that read a row call, wait for, say and leave.
#include <gtest/gtest.h>

#include "apinventory/readers.h"
#include "core/holdings.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using readers::Listener;
using readers::Reader;
using readers::Reading;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";

class ReadingCalls : public testing::TestWithParam<Reader> {
protected:
    static void insert_row() { insert(GetParam().table, numbered_row(GetParam().table, GetParam().key)); }

    /// Plans answers for the calls of a function that count for the row, behind those that come before.
    static void answer(Recorder &recorder, const std::string &function, const std::vector<int> &results) {
        for (std::size_t i = 0; i < readers::calls_before(GetParam(), function); ++i) {
            recorder.answer(function, {Recorder::really});
        }
        for (const int result : results) {
            recorder.answer(function, {result});
        }
    }

    /// Does something right before the first call that notes a line, when the calls before are over.
    static void before(Recorder &recorder, const std::string &line, const std::function<void()> &action) {
        const std::size_t calls_before = readers::calls_before(GetParam(), line);
        recorder.watch([line, action, calls_before, calls = std::size_t{0}](const std::string &noted) mutable {
            if (noted == line && calls++ == calls_before) {
                action();
            }
        });
    }

    /// Expects a failed reading of a table that has a row: result, zero record, one message, nothing held.
    static void expect_failure(Recorder &recorder, int result, Listener listener, const std::string &message) {
        const int descriptors = support::open_descriptors();
        Reading reading{};
        const support::Streams::Text said = support::streams_of([&] { reading = GetParam().read(); });
        EXPECT_EQ(reading.result, result);
        EXPECT_EQ(places::difference(DevInfo{}, reading.record), "");
        EXPECT_EQ(said.output, listener == Listener::standard_output ? message : "");
        EXPECT_EQ(said.error, listener == Listener::standard_error ? message : "");
        EXPECT_EQ(recorder.calls({"syslog"}),
                  listener == Listener::system_log ? Lines{"syslog 3 " + message} : Lines());
        EXPECT_EQ(support::open_descriptors(), descriptors);
        EXPECT_TRUE(support::lock_file_is_free());
    }
};

TEST_P(ReadingCalls, calls_in_a_fixed_order) {
    insert_row();
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    const Reading reading = GetParam().read();
    Lines expected = GetParam().calls_before;
    if (GetParam().opens) {
        expected.emplace_back(open_call);
    }
    expected.insert(expected.end(), {"sqlite3_prepare_v2 " + GetParam().query, "sqlite3_step"});
    const int converters = support::build_profile.shares_converter ? 1 : 6;
    for (int converter = 0; GetParam().converts && converter < converters; ++converter) {
        expected.insert(expected.end(), {"iconv_open gb2312 utf-8", "iconv_close"});
    }
    expected.insert(expected.end(), {"sqlite3_step", "sqlite3_finalize", "sqlite3_close"});
    EXPECT_EQ(recorder.calls(), expected);
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_EQ(reading.result, GetParam().result);
}

TEST_P(ReadingCalls, holds_neither_lock_nor_mutex_while_it_reads_the_row) {
    insert_row();
    Recorder recorder;
    Lines held;
    recorder.watch([&](const std::string &line) {
        if (line == "sqlite3_prepare_v2 " + GetParam().query) {
            held = {mutex_is_free() ? "" : "mutex", support::lock_file_is_free() ? "" : "lock"};
        }
    });
    GetParam().read();
    EXPECT_EQ(held, (Lines{"", ""}));
}

TEST_P(ReadingCalls, reads_past_a_mutex_that_is_taken) {
    insert_row();
    pthread_mutex_lock(&db_mutex);
    EXPECT_EQ(GetParam().read().result, GetParam().result);
    pthread_mutex_unlock(&db_mutex);
}

TEST_P(ReadingCalls, sleeps_grow_by_five_through_open_prepare_and_first_step) {
    insert_row();
    Recorder recorder;
    recorder.answer("draw", {0});
    if (GetParam().opens) {
        answer(recorder, "sqlite3_open", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    answer(recorder, "sqlite3_prepare_v2", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    answer(recorder, "sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    const Reading reading = GetParam().read();
    EXPECT_EQ(reading.result, GetParam().result);
    EXPECT_EQ(places::text(reading.record, "Dev_Wlan1_Ssid"),
              GetParam().table.column == &places::Place::device ? "c18" : "c4");
    std::vector<unsigned> sleeps;
    for (unsigned n = 0; n < (GetParam().opens ? 9 : 6); ++n) {
        sleeps.push_back(GetParam().first_sleep + 5 * n);
    }
    EXPECT_EQ(recorder.sleeps(), sleeps);
}

TEST_P(ReadingCalls, says_that_the_database_cannot_be_opened) {
    insert_row();
    Recorder recorder;
    if (GetParam().opens) {
        before(recorder, open_call, tables::make_unopenable);
    } else {  // it is opened when the table is gone from the connection that is shared
        before(recorder, "sqlite3_prepare_v2 " + GetParam().query, [] {
            drop(GetParam().table);
            tables::make_unopenable();
        });
    }
    expect_failure(recorder, GetParam().result_when_unopenable, GetParam().told_when_unopenable,
                   "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n");
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

TEST_P(ReadingCalls, says_that_the_statement_cannot_be_prepared) {
    insert_row();
    Recorder recorder;
    before(recorder, "sqlite3_prepare_v2 " + GetParam().query, [] { drop(GetParam().table); });
    expect_failure(recorder, GetParam().result_when_unpreparable, GetParam().told_when_unpreparable,
                   "cannot prepare sql cmdline, Error: " + GetParam().error_without_table + "\n");
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
    EXPECT_EQ(recorder.calls({"sqlite3_open"}).size(), recorder.calls({"sqlite3_close"}).size());
}

TEST_P(ReadingCalls, any_other_result_than_a_row_ends_the_rows) {
    insert_row();
    Recorder recorder;
    for (const int result : {SQLITE_ERROR, SQLITE_MISUSE, SQLITE_CORRUPT}) {
        answer(recorder, "sqlite3_step", GetParam().opens ? std::vector{result} : std::vector{result, result});
        const Reading reading = GetParam().read();
        EXPECT_EQ(reading.result, GetParam().result_without_row);
        EXPECT_EQ(places::difference(DevInfo{}, reading.record), "");
    }
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

INSTANTIATE_TEST_SUITE_P(All, ReadingCalls, testing::ValuesIn(readers::all()), testing::PrintToStringParamName());

}  // namespace
