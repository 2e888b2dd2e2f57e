// What becomes of a list when the application catalogue cannot be read.
#include <gtest/gtest.h>
#include <unistd.h>

#include "json/catalogue.h"
#include "json/faults.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/failing_readings.h"
#include "support/recorder.h"

namespace {

using catalogue::List;
using printed::by;
using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/dpilib.db";

/// What is closed of the caller's descriptors by one reading.
const Lines of_callers = build_profile.closes_its_own ? Lines{} : Lines{"close 0"};

class CatalogueFailures : public testing::TestWithParam<List> {
protected:
    CatalogueFailures() {
        catalogue::open_descriptor(STDIN_FILENO);
        catalogue::fill();
    }

    static std::string print() {
        return by([] { GetParam().print(); });
    }

    static std::string row_call() { return "sqlite3_prepare_v2 " + std::string(GetParam().row_query); }

    static void drop_table() { catalogue::execute("drop table " + std::string(GetParam().table) + ";"); }

    static std::string error_without_table() { return "no such table: " + std::string(GetParam().table); }
};

TEST_P(CatalogueFailures, count_nothing_when_the_catalogue_cannot_be_opened) {
    faults::make_unopenable(support::catalogue_database);
    const support::DeliberateLeak leak;
    printed::expect_complete(print(), R"({"ItemList":{"count":"0"}})");
    EXPECT_EQ(catalogue::is_open(STDIN_FILENO), build_profile.closes_its_own);
}

TEST_P(CatalogueFailures, put_the_message_of_a_failed_count_before_the_list) {
    drop_table();
    printed::expect_unfinished(print(), "Error: " + error_without_table() + R"({"ItemList":{"count":"0"}})");
    EXPECT_EQ(catalogue::is_open(STDIN_FILENO), build_profile.closes_its_own);
}

TEST_P(CatalogueFailures, leave_the_list_unfinished_without_a_word_when_the_second_open_fails) {
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    if (build_profile.shares_connection) {  // it is opened when the table is gone from the shared one
        faults::before(recorder, row_call(), 1, [] {
            drop_table();
            faults::make_unopenable(support::catalogue_database);
        });
    } else {
        faults::before(recorder, open_call, 2, [] { faults::make_unopenable(support::catalogue_database); });
    }
    printed::expect_unfinished(print(), R"({"ItemList":{"data":[)");
    EXPECT_EQ(recorder.calls({"sqlite3_open"}), (Lines{open_call, open_call}));
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
    EXPECT_LE(support::open_descriptors(), descriptors);
}

TEST_P(CatalogueFailures, close_the_descriptor_whose_number_is_the_code_of_the_failed_open_where_the_profile_does) {
    for (const int code : {14, 26, 101}) {
        catalogue::open_descriptor(STDIN_FILENO);
        catalogue::open_descriptor(code);
        ASSERT_TRUE(catalogue::is_open(code));
        Recorder recorder;
        support::fail_opening(recorder, 2, code);
        printed::expect_unfinished(print(), R"({"ItemList":{"data":[)");
        EXPECT_EQ(catalogue::is_open(code), build_profile.closes_its_own) << code;
        EXPECT_EQ(recorder.calls({"close 0"}), of_callers);  // by the count
    }
}

TEST_P(CatalogueFailures, close_no_descriptor_by_a_code_when_all_goes_well) {
    for (const int code : {14, 100, 101}) {
        catalogue::open_descriptor(code);
    }
    EXPECT_TRUE(printed::is_json(print()));
    for (const int code : {14, 100, 101}) {
        EXPECT_TRUE(catalogue::is_open(code)) << code;
    }
}

TEST_P(CatalogueFailures, leave_the_list_unfinished_with_a_message_when_the_rows_cannot_be_prepared) {
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    faults::before(recorder, row_call(), 1, drop_table);
    printed::expect_unfinished(print(), R"({"ItemList":{"data":[Webserver Error: )" + error_without_table());
    EXPECT_EQ(recorder.calls({open_call, "sqlite3_close"}),
              (Lines{open_call, "sqlite3_close", open_call, "sqlite3_close"}));
    EXPECT_EQ(recorder.calls({"close 0"}).size(), 2 * of_callers.size());
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
    EXPECT_EQ(catalogue::is_open(STDIN_FILENO), build_profile.closes_its_own);
    EXPECT_EQ(support::open_descriptors(), descriptors - static_cast<int>(of_callers.size()));
}

TEST_P(CatalogueFailures, close_the_list_when_the_first_step_fails) {
    for (const int code : {SQLITE_ERROR, SQLITE_MISUSE, SQLITE_CORRUPT}) {
        catalogue::open_descriptor(STDIN_FILENO);
        Recorder recorder;
        support::fail_beginning(recorder, "sqlite3_step", 2, code);
        const std::string count = GetParam().name == "OneClass" ? "3" : "0";
        printed::expect_complete(print(), catalogue::opening + std::string(GetParam().closing) + count + "\"}}");
        EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
        EXPECT_EQ(catalogue::is_open(STDIN_FILENO), build_profile.closes_its_own);
    }
}

INSTANTIATE_TEST_SUITE_P(All, CatalogueFailures, testing::ValuesIn(catalogue::lists()),
                         [](const auto &test) { return test.param.name; });

TEST(GetAppInfoItemListByClassid, closes_the_list_behind_the_rows_that_it_got) {
    catalogue::fill();
    Recorder recorder;
    recorder.answer("sqlite3_step", {Recorder::really, Recorder::really, SQLITE_BUSY});
    printed::expect_complete(
        by([] { GetAppInfoItemListByClassid("3"); }),
        R"({"ItemList":{"data":[)"
        R"({"id":"1","class_id":"3","appname":"A","appname_en":"A en","features":"fa","mark":"first"},)"
        R"({"id":"","class_id":"","appname":"","appname_en":"","features":"","mark":"" }],)"
        R"("count":"1"}})");
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

TEST(GetAppClassItemList, puts_the_messages_of_names_that_cannot_be_joined_before_the_element) {
    catalogue::execute("insert into App_Class values(3,'n','e',0,'m'); drop table App_Info;");
    const std::string message = "Webserver Error: no such table: App_Info";
    printed::expect_unfinished(by(GetAppClassItemList),
                               catalogue::opening + message + message + message +
                                   R"({"id":"3","name":"n","name_en":"e","mark":"m","priority":"0","bw":"0",)"
                                   R"("appnames":"","appnames_en":"","appfeature":""},)"
                                   R"({"id":"","name":"","name_en":"","mark":"","priority":"","bw":"",)"
                                   R"("appnames":"","appnames_en":"","appfeature":""}],"count":"1"}})");
}

}  // namespace
