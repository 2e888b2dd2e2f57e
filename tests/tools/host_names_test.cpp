// Lists of rules with host names. Each reading of the leases leaves a stream open: one process runs out of descriptors
// after a few lists, the service, which replaces such a process in time, never does.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "rules/golden/golden.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/service.h"
#include "support/streams.h"

namespace {

using golden::Table;
using support::difference;

constexpr int descriptors = 1024;
constexpr int few_descriptors = 256;

void limit_descriptors(rlim_t count) {
    const rlimit limit{count, count};
    setrlimit(RLIMIT_NOFILE, &limit);
}

/// Takes all descriptors that the process may have but for some.
void leave_descriptors(int count) {
    while (open("/dev/null", O_RDONLY | O_CLOEXEC) >= 0) {
    }
    for (int n = 1; n <= count; ++n) {
        close(descriptors - n);
    }
}

/// A table whose rules name hosts, and the places of address and name in its record.
struct Rules : support::Named {
    Table table;
    std::size_t mac;
    std::size_t name;

    /// Rules 1 to n, each with a host of its own.
    void insert(int n) const;
    std::string list(int n) const;
};

std::string mac_of(int n) {
    return "00:00:00:00:00:" + std::to_string(100 + n);
}

std::string name_of(int n) {
    return golden::numbered(100, 'h', n);
}

void Rules::insert(int n) const {
    support::execute(table.inserts(n) + "update " + table.name + " set devmac = '00:00:00:00:00:' || (100 + id);");
    std::string leases;
    for (int i = n; i > 0; --i) {
        leases += "1700000000 " + mac_of(i) + " 192.168.1.2 " + name_of(i) + "\n";
    }
    support::write_file("/var/dhcp.leases", leases);
}

std::string Rules::list(int n) const {
    std::string records;
    for (int i = 1; i <= n; ++i) {
        std::string record = table.record(i);
        record.replace(mac, mac_of(i).size(), mac_of(i));
        record.replace(name, name_of(i).size(), name_of(i));
        records += record;
    }
    return support::list_of(records, static_cast<std::uint32_t>(n), table.list_size);
}

class HostNames : public testing::TestWithParam<Rules> {
protected:
    HostNames() { limit_descriptors(descriptors); }

    static std::string served() {
        std::string list(GetParam().table.list_size, '\x5a');
        GetParam().table.list(list.data());
        return list;
    }

    static std::string built() {
        std::string list(GetParam().table.list_size, '\x5a');
        GetParam().table.build(list.data(), GetParam().table.list_query.c_str());
        return list;
    }
};

TEST_P(HostNames, of_full_tables_are_served_whole_again_and_again) {
    GetParam().insert(128);
    const support::Service service;
    for (int n = 0; n < 16; ++n) {  // twice as many as one process could build
        ASSERT_EQ(difference(GetParam().list(128), served()), "") << "list " << n;
    }
}

TEST_P(HostNames, are_missing_in_the_eighth_list_that_one_process_builds_unless_it_closes_its_own) {
    GetParam().insert(128);
    const auto streams = support::streams_of([] {
        if (support::build_profile.remembers_lookups) {  // one reading for each list
            leave_descriptors(7 + 3);                    // beside lock file, database and the stream that is read
        }
        for (int n = 1; n < 8; ++n) {
            ASSERT_EQ(difference(GetParam().list(128), built()), "") << "list " << n;
        }
        const std::string eighth = built();
        EXPECT_EQ(support::word(eighth, 0), 128U);
        EXPECT_EQ(difference(GetParam().list(128), eighth).empty(), support::build_profile.closes_its_own);
    });
    EXPECT_EQ(streams.error.substr(0, 47),
              support::build_profile.closes_its_own ? "" : "could not open input file: Too many open files\n");
}

INSTANTIATE_TEST_SUITE_P(, HostNames,
                         testing::Values(Rules{"filter_mac", golden::table("filter_mac"), 304, 154},
                                         Rules{"behavior_rule", golden::table("behavior_rule"), 1228, 8}));

/// Each lookup takes more than a millisecond, so the lists are short.
class ManyHostNames : public HostNames {
protected:
    ManyHostNames() { limit_descriptors(few_descriptors); }
};

TEST_P(ManyHostNames, are_served_whole_in_a_thousand_lists) {
    constexpr int rules = 4;
    GetParam().insert(rules);
    const std::string expected = GetParam().list(rules);
    const support::Service service;
    for (int n = 0; n < 1000; ++n) {  // of many times as many lookups as one process has descriptors
        ASSERT_EQ(difference(expected, served()), "") << "list " << n;
    }
}

INSTANTIATE_TEST_SUITE_P(, ManyHostNames, testing::Values(Rules{"filter_mac", golden::table("filter_mac"), 304, 154}));

}  // namespace
