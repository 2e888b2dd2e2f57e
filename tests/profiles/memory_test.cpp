// Memory in which a call remembers what it has looked up: without it, it looks up again.
#include <gtest/gtest.h>

#include <cerrno>
#include <map>

#include "profiles/samples.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"
#include "support/wrapped_calls.h"

namespace {

constexpr char leases[] = "/var/dhcp.leases";

/// The calls that remember, and how many blocks they take for it.
const std::map<std::string, int> remembering{
    {"GetAppClassItemList", 5},           // two classes, three applications
    {"GetUrlFilterItemListInServer", 1},  // a time group
    {"GetMacFilterItemListInServer", 2},  // leases
    {"GetBehaviorItemListInServer", 9},   // both groups, leases, two classes, three applications
};

class Memory : public testing::TestWithParam<samples::Call> {
protected:
    /// What is seen of the call whose n-th allocation fails, from 1.
    static std::string seen(int n, bool &failed) {
        std::string result;
        const auto said = support::streams_of([&] {
            support::WrappedCalls calls;
            calls.fail("malloc", n, ENOMEM);
            result = GetParam().make();
            failed = calls.failed();
            EXPECT_EQ(calls.blocks(), std::vector<std::size_t>());
        });
        return result + said.output + said.error;
    }
};

TEST_P(Memory, may_be_missing_for_anything_that_is_remembered) {
    samples::fill_databases();
    bool failed = false;
    const std::string expected = seen(0, failed);
    int failures = 0;
    for (failed = true; failed;) {
        EXPECT_EQ(support::difference(expected, seen(failures + 1, failed)), "") << failures + 1;
        failures += failed ? 1 : 0;
    }
    EXPECT_EQ(failures, support::build_profile.remembers_lookups ? remembering.at(GetParam().name) : 0);
}

std::vector<samples::Call> remembering_calls() {
    std::vector<samples::Call> calls;
    for (const samples::Call &call : samples::calls()) {
        if (remembering.count(call.name) != 0) {
            calls.push_back(call);
        }
    }
    return calls;
}

TEST(LeasesWithoutMemory, are_read_again_as_they_are_then) {
    support::execute(
        "insert into filter_mac(devmac) values('00:11:22:33:44:55'),('AA:BB:CC:DD:EE:FF'),"
        "('AA:BB:CC:DD:EE:FF');");
    support::write_file(leases, "17 AA:BB:CC:DD:EE:FF 192.168.1.3 old\n17 00:11:22:33:44:55 192.168.1.2 tablet\n");
    support::Recorder recorder;
    recorder.watch([readings = 0](const std::string &line) mutable {
        if (line == "usleep 1000" && ++readings == 2) {
            support::write_file(leases, "17 AA:BB:CC:DD:EE:FF 192.168.1.3 new\n");
        }
    });
    support::WrappedCalls calls;
    calls.fail("malloc", 2, ENOMEM);  // the first reading remembers one lease of two
    static MacFilterItemList list;
    GetMacFilterItemListInServer(&list, "select * from filter_mac;");
    EXPECT_STREQ(list.items[0].hostname, "tablet");
    EXPECT_STREQ(list.items[1].hostname, "new");
    EXPECT_STREQ(list.items[2].hostname, "new");
}

INSTANTIATE_TEST_SUITE_P(, Memory, testing::ValuesIn(remembering_calls()), testing::PrintToStringParamName());

}  // namespace
