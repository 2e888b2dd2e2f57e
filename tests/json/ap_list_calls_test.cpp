// What a page of access points calls, waits for and holds.
#include <gtest/gtest.h>

#include "core/holdings.h"
#include "json/ap_list.h"
#include "json/printed.h"
#include "support/recorder.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

constexpr int counts = 5;  // each on a connection of its own, before that of the page

Lines reading(const std::string &query, const Lines &steps) {
    Lines calls{"gettimeofday", "srand", "rand", "sqlite3_open /etc/config/systemconf/database/myrouter.db",
                "sqlite3_prepare_v2 " + query};
    calls.insert(calls.end(), steps.begin(), steps.end());
    calls.insert(calls.end(), {"sqlite3_finalize", "sqlite3_close"});
    return calls;
}

TEST(ApListCalls, are_five_counts_and_a_page_on_connections_of_their_own) {
    ap_list::add_network(2);
    Lines expected;
    for (const char *count :
         {"select count(*) from DevInfo where Dev_Ipaddress <> '';",
          "select count(*) from DevInfo  where Dev_Status='1';", "select sum(Dev_Wlan_Sta_Num) from DevInfo ;",
          "select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;",
          "select count(*) from DevInfo where Dev_Ipaddress <> '';"}) {
        const Lines calls = reading(count, {"sqlite3_step"});
        expected.insert(expected.end(), calls.begin(), calls.end());
    }
    const Lines calls = reading("select * from DevInfo where Dev_Ipaddress <> '' order by Dev_IPSUM  limit 0,17 ;",
                                {"sqlite3_step", "sqlite3_step", "sqlite3_step"});
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
    recorder.answer("rand", {0, 0, 0, 0, 0, 2147483647});
    for (const char *function : {"sqlite3_open", "sqlite3_prepare_v2", "sqlite3_step"}) {
        for (int i = 0; i < counts; ++i) {
            recorder.answer(function, {Recorder::really});
        }
        recorder.answer(function, {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    EXPECT_EQ(ap_list::page({}), unlocked);
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{155, 160, 165, 170, 175, 180, 185, 190, 195}));
}

}  // namespace
