// What becomes of a page of access points when the database cannot be read.
#include <gtest/gtest.h>

#include "json/ap_list.h"
#include "json/faults.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/failing_readings.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";
constexpr char page_call[] =
    "sqlite3_prepare_v2 select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;";

/// Statements before the filtered count.
constexpr int totals = support::build_profile.merges_totals ? 1 : 4;

/// Expects a list that breaks off before its first element, a message, and nothing left open.
void expect_break(const Recorder &recorder, const std::string &message) {
    const int descriptors = support::open_descriptors();
    const auto said = support::streams_of([] { GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); });
    printed::expect_unfinished(said.output, R"({"ApDevList":{"data":[)");
    EXPECT_EQ(said.error, message);
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
    EXPECT_EQ(recorder.calls({"syslog"}), Lines());
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(ApListFailures, break_the_list_off_when_the_database_cannot_be_opened_for_the_page) {
    ap_list::add_network(2);
    Recorder recorder;
    if (support::build_profile.shares_connection) {  // it is opened when the table is gone from the shared one
        faults::before(recorder, page_call, 1, [] {
            support::execute("drop table DevInfo;");
            faults::make_unopenable(support::main_database);
        });
    } else {
        faults::before(recorder, open_call, 6, [] { faults::make_unopenable(support::main_database); });
    }
    expect_break(recorder, "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n");
}

TEST(ApListFailures, break_the_list_off_when_the_page_cannot_be_prepared) {
    ap_list::add_network(2);
    Recorder recorder;
    faults::before(recorder, page_call, 1, [] { support::execute("drop table DevInfo;"); });
    expect_break(recorder, "cannot prepare sql cmdline, Error: no such table: DevInfo\n");
    EXPECT_EQ(recorder.calls({"sqlite3_close"}).size(), recorder.calls({"sqlite3_open"}).size());
}

TEST(ApListFailures, of_each_count_put_a_message_before_the_short_answer) {
    support::execute("drop table DevInfo;");
    const std::string message = "Error: no such table: DevInfo";
    printed::expect_unfinished(ap_list::page({}), message + message + message + ap_list::nothing);
}

TEST(ApListFailures, of_the_filtered_count_alone_print_the_short_answer) {
    ap_list::add_network(2);
    Recorder recorder;
    support::fail_beginning(recorder, "sqlite3_step", totals + 1, SQLITE_CORRUPT);
    printed::expect_complete(ap_list::page({}), ap_list::nothing);
}

TEST(ApListFailures, to_open_the_database_at_all_print_the_short_answer_without_a_word) {
    faults::make_unopenable(support::main_database);
    const support::DeliberateLeak leak;
    printed::expect_complete(ap_list::page({}), ap_list::nothing);
}

TEST(ApListFailures, of_a_total_show_in_its_number) {
    ap_list::add_network(2);
    Recorder recorder;
    if (support::build_profile.merges_totals) {  // the merged statement fails, and the second one in its place
        recorder.answer("sqlite3_prepare_v2", {SQLITE_ERROR, Recorder::really, SQLITE_ERROR});
    }
    // The second one counts those online, the third and the fourth add up stations.
    recorder.answer("sqlite3_open", {Recorder::really, SQLITE_CANTOPEN, SQLITE_CANTOPEN, SQLITE_CANTOPEN});
    printed::expect_complete(
        ap_list::page({}),
        ap_list::opening + ap_list::element("1", "10.0.0.1", "", "", "0") +
            ap_list::element("2", "10.0.0.2", "", "", "0") + ap_list::closing +
            R"(,"count":"2","pagenum":"1","pagecount":"0","sumcount":"2","onlinecount":"-1","stasumnum":"-2"}})");
}

TEST(ApListFailures, of_a_step_close_the_list_behind_the_rows_that_it_got) {
    ap_list::add_network(20);
    Recorder recorder;
    support::let_pass(recorder, "sqlite3_step", totals + 2);
    recorder.answer("sqlite3_step", {SQLITE_BUSY});
    printed::expect_complete(
        ap_list::page({}),
        ap_list::opening + ap_list::element("1", "10.0.0.1", "", "", "0") + ap_list::closing +
            R"(,"count":"1","pagenum":"1","pagecount":"2","sumcount":"20","onlinecount":"0","stasumnum":"0"}})");
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

}  // namespace
