// The feature texts of a class, which stand in the main database.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <memory>

#include "core/holdings.h"
#include "json/catalogue.h"
#include "json/faults.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"

namespace {

using support::difference;
using support::Record;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr std::size_t record_size = 28804;  // a number, and 128 slots of 225 bytes
constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";

class FeatureList : public testing::Test {
protected:
    static void add(int class_id, const std::string &feature) {
        support::execute("insert into App_Info(Class_Id,Name,Features) values(" + std::to_string(class_id) + ",'n'," +
                         feature + ");");
    }

    /// The bytes of a record that was full of something else, in a buffer with room behind it.
    static std::string read(int class_id, std::size_t size = record_size, const std::string &said = "") {
        const std::unique_ptr<char[]> buffer(new char[size]);
        std::memset(buffer.get(), 0x5a, size);
        EXPECT_EQ(
            printed::by([&] { GetAppItemListByClassId(reinterpret_cast<AppFeatureList *>(buffer.get()), class_id); }),
            said);
        return {buffer.get(), size};
    }
};

TEST_F(FeatureList, has_a_count_and_a_slot_for_each_text) {
    add(3, "'fa'");
    add(7, "'other'");
    add(3, "''");
    add(3, "'fb'");
    EXPECT_EQ(difference(Record(record_size).number(0, 3).text(4, "fa").text(4 + 450, "fb").bytes(), read(3)), "");
}

TEST_F(FeatureList, comes_from_the_main_database_and_not_from_the_catalogue) {
    catalogue::fill();
    EXPECT_EQ(difference(std::string(record_size, '\0'), read(3)), "");
}

TEST_F(FeatureList, is_all_zero_for_a_class_without_applications) {
    add(3, "'fa'");
    for (const int class_id : {0, 4, -3}) {
        EXPECT_EQ(difference(std::string(record_size, '\0'), read(class_id)), "");
    }
}

TEST_F(FeatureList, reads_null_as_an_empty_text_and_cuts_behind_199_bytes) {
    add(3, "NULL");
    add(3, "'" + std::string(199, 'a') + "'");
    add(3, "'" + std::string(200, 'b') + "'");
    add(3, "'" + std::string(300, 'c') + "'");
    EXPECT_EQ(difference(Record(record_size)
                             .number(0, 4)
                             .text(4 + 225, std::string(199, 'a'))
                             .text(4 + 450, std::string(199, 'b'))
                             .text(4 + 675, std::string(199, 'c'))
                             .bytes(),
                         read(3)),
              "");
}

TEST_F(FeatureList, has_no_limit_but_the_callers_buffer_or_ends_with_its_room) {
    support::execute(
        "with recursive n(i) as (select 0 union all select i+1 from n where i<199)"
        " insert into App_Info(Class_Id,Features) select 3,'f'||i from n;");
    constexpr std::size_t size = 4 + 200 * 225;
    constexpr int listed = support::build_profile.caps_lists ? 128 : 200;
    Record expected(size, 0x5a);
    expected.unterminated(0, std::string(record_size, '\0')).number(0, listed);
    for (std::size_t i = 0; i < listed; ++i) {
        expected.text(4 + i * 225, "f" + std::to_string(i));
    }
    EXPECT_EQ(difference(expected.bytes(), read(3, size)), "");
}

TEST_F(FeatureList, is_read_under_the_lock_file) {
    add(3, "'fa'");
    Recorder recorder;
    Holdings holdings(recorder);
    read(3);
    EXPECT_EQ(recorder.calls(),
              (Lines{"open lock file", "draw", "lock", open_call,
                     "sqlite3_prepare_v2 select Features from App_Info where Class_Id='3' ;", "sqlite3_step",
                     "sqlite3_step", "sqlite3_finalize", "sqlite3_close", "unlock", "close lock file"}));
    EXPECT_EQ(holdings.changes(), (Lines{std::string(open_call) + ": lock", "close lock file: nothing"}));
}

TEST_F(FeatureList, is_read_without_lock_when_there_is_no_lock_file) {
    add(3, "'fa'");
    ASSERT_EQ(unlink(support::lock_file), 0);
    const int descriptors = support::open_descriptors();
    const std::string expected = Record(record_size).number(0, 1).text(4, "fa").bytes();
    EXPECT_EQ(difference(expected, read(3, record_size, support::cannot_open_lock_file)), "");
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_FALSE(support::file_exists(support::lock_file));
}

TEST_F(FeatureList, is_all_zero_after_a_message_when_the_query_cannot_be_prepared) {
    support::execute("drop table App_Info;");
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    EXPECT_EQ(difference(std::string(record_size, '\0'), read(3, record_size, "Error: no such table: App_Info")), "");
    EXPECT_EQ(recorder.calls({"sqlite3_close", "unlock", "close"}),
              (Lines{"sqlite3_close", "unlock", "close lock file"}));
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST_F(FeatureList, is_all_zero_after_a_message_when_the_database_cannot_be_opened) {
    faults::make_unopenable(support::main_database);
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    EXPECT_EQ(difference(std::string(record_size, '\0'), read(3, record_size, "Error: unable to open database file")),
              "");
    EXPECT_EQ(recorder.calls({"sqlite3_close", "unlock", "close"}),
              (Lines{"sqlite3_close", "unlock", "close lock file"}));
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST_F(FeatureList, sleeps_grow_by_five_through_open_prepare_and_first_step) {
    add(3, "'fa'");
    Recorder recorder;
    recorder.answer("draw", {0});
    for (const char *function : {"sqlite3_open", "sqlite3_prepare_v2", "sqlite3_step"}) {
        recorder.answer(function, {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    EXPECT_EQ(difference(Record(record_size).number(0, 1).text(4, "fa").bytes(), read(3)), "");
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{56, 61, 66, 71, 76, 81, 86, 91, 96}));
}

}  // namespace
