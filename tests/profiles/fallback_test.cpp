// What the modern profile does at once is done in the exact profile's way when it fails, and nobody sees it.
#include <gtest/gtest.h>

#include <algorithm>

#include "profiles/samples.h"
#include "support/failing_readings.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

/// A call whose statement number n is a spared one, and the statements that stand in for it.
struct Spared : support::Named {
    const char *call;
    int n;
    int step;  // the number of its first step
    Lines stand_ins;
    int failures = 1;
};

const Spared spared[] = {
    {"Totals",
     "GetApDevList_cgi",
     1,
     1,
     {"select count(*) from DevInfo where Dev_Ipaddress <> '';", "select count(*) from DevInfo  where Dev_Status='1';",
      "select sum(Dev_Wlan_Sta_Num) from DevInfo ;", "select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;"}},
    {"FirstGroupNumber", "GetWlanZeroCfgGroupList", 1, 1, {"select * from WlanZeroCfgGroupInfo;"}},
    {"JoinedNames",
     "GetAppClassItemList",
     3,
     3,
     {"select Name from App_Info where Class_Id='3';", "select Name_En from App_Info where Class_Id='3';",
      "select Features from App_Info where Class_Id='3';", "select Name from App_Info where Class_Id='7';"}},
    {"TimeGroup", "GetUrlFilterItemListInServer", 2, 2, {"select * from user_timegroup where id='3';"}},
    {"IpGroup", "GetBehaviorItemListInServer", 2, 2, {"select name,startip,endip from user_ipgroup where Id='4' ;"}},
    {"Applications",
     "GetBehaviorItemListInServer",
     5,
     5,
     {"select Name,Name_En from App_Info where Class_Id='3' and Features='f1';",
      "select Name,Name_En from App_Info where Class_Id='3' and Features='f2';"},
     2},  // it is tried again on a connection of its own before
    // On a connection that is shared: the same statement on a connection of its own.
    {"Page", "GetApDevList", 2, 1, {"select * from DevInfo  order by Dev_IPSUM ;"}},
    {"Groups", "DB_getwlanzerocfggroupinfo", 2, 4, {"select * from WlanZerocfgGroupInfo where WlanGroup_Id='1';"}},
    {"Classes", "GetAppClassItemList", 2, 2, {"select * from App_Class order by Id ;"}},
};

class Fallback : public testing::TestWithParam<Spared> {
protected:
    Fallback() { samples::fill_databases(); }

    static std::string seen() {
        const auto &calls = samples::calls();
        const auto call = std::find_if(calls.begin(), calls.end(),
                                       [](const samples::Call &sample) { return sample.name == GetParam().call; });
        std::string result;
        const auto said = support::streams_of([&] { result = call->make(); });
        return result + said.output + said.error;
    }

    /// Expects that the call shows the same when a function fails from the n-th time on.
    static void expect_the_same(const char *function, int n) {
        const std::string expected = seen();
        Recorder recorder;
        support::let_pass(recorder, function, n - 1);
        for (int failure = 0; failure < GetParam().failures; ++failure) {
            recorder.answer(function, {SQLITE_ERROR});
        }
        EXPECT_EQ(support::difference(expected, seen()), "");
        const Lines calls = recorder.calls({"sqlite3_prepare_v2", "syslog", "usleep"});
        for (const std::string &statement : GetParam().stand_ins) {
            EXPECT_GE(std::count(calls.begin() + GetParam().n, calls.end(), "sqlite3_prepare_v2 " + statement), 1)
                << statement;
        }
        EXPECT_EQ(recorder.calls({"syslog"}), Lines());
        EXPECT_EQ(recorder.calls({"sqlite3_open"}).size(), recorder.calls({"sqlite3_close"}).size());
    }
};

TEST_P(Fallback, of_a_statement_that_cannot_be_prepared_shows_the_same) {
    expect_the_same("sqlite3_prepare_v2", GetParam().n);
}

TEST_P(Fallback, of_a_statement_that_gives_no_row_shows_the_same) {
    expect_the_same("sqlite3_step", GetParam().step);
}

INSTANTIATE_TEST_SUITE_P(, Fallback, testing::ValuesIn(spared), testing::PrintToStringParamName());

}  // namespace
