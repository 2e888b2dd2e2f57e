// What a page of access points calls, waits for and holds.
#include <gtest/gtest.h>

#include "core/holdings.h"
#include "json/ap_list.h"
#include "json/printed.h"
#include "support/failing_readings.h"
#include "support/recorder.h"

namespace {

using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";
constexpr char page_query[] = "select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;";

/// The statements before that of the page.
Lines counts() {
    Lines queries = build_profile.merges_totals
                        ? Lines{"select sum(Dev_Ipaddress <> ''),sum(Dev_Status='1'),sum(Dev_Wlan_Sta_Num),"
                                "sum(Dev_Wlan_Sta_Num_sec) from DevInfo;"}
                        : Lines{"select count(*) from DevInfo where Dev_Ipaddress <> '';",
                                "select count(*) from DevInfo  where Dev_Status='1';",
                                "select sum(Dev_Wlan_Sta_Num) from DevInfo ;",
                                "select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;"};
    queries.emplace_back("select count(*) from DevInfo where Dev_Ipaddress <> '';");
    return queries;
}

Lines reading(const std::string &query, const Lines &steps, bool opens, bool closes) {
    Lines calls{"draw"};
    if (opens) {
        calls.emplace_back(open_call);
    }
    calls.push_back("sqlite3_prepare_v2 " + query);
    calls.insert(calls.end(), steps.begin(), steps.end());
    calls.emplace_back("sqlite3_finalize");
    if (closes) {
        calls.emplace_back("sqlite3_close");
    }
    return calls;
}

TEST(ApListCalls, are_counts_and_a_page_on_the_connections_of_the_profile) {
    ap_list::add_network(2);
    const bool own_connections = !build_profile.shares_connection;
    Lines expected;
    for (const std::string &count : counts()) {
        const Lines calls = reading(count, {"sqlite3_step"}, own_connections || expected.empty(), own_connections);
        expected.insert(expected.end(), calls.begin(), calls.end());
    }
    const Lines calls = reading(page_query, {"sqlite3_step", "sqlite3_step", "sqlite3_step"}, own_connections, true);
    expected.insert(expected.end(), calls.begin(), calls.end());

    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    ap_list::page({});
    EXPECT_EQ(recorder.calls(), expected);
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(ApListCalls, hold_neither_lock_nor_mutex) {
    ap_list::add_network(2);
    Recorder recorder;
    Holdings holdings(recorder);
    ap_list::page({});
    EXPECT_EQ(holdings.changes(), Lines());
}

TEST(ApListCalls, share_one_series_of_sleeps_for_the_page) {
    ap_list::add_network(2);
    const std::string unlocked = ap_list::page({});
    Recorder recorder;
    const int before = static_cast<int>(counts().size());
    for (int i = 0; i < before; ++i) {
        recorder.answer("draw", {0});
    }
    recorder.answer("draw", {2147483647});
    for (const char *function : {"sqlite3_open", "sqlite3_prepare_v2", "sqlite3_step"}) {
        support::let_pass(recorder, function, before);
        recorder.answer(function, {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    EXPECT_EQ(ap_list::page({}), unlocked);
    EXPECT_EQ(recorder.sleeps(), build_profile.shares_connection
                                     ? (std::vector<unsigned>{155, 160, 165, 170, 175, 180})
                                     : (std::vector<unsigned>{155, 160, 165, 170, 175, 180, 185, 190, 195}));
}

}  // namespace
