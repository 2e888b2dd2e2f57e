// The process id in a pid file.
#include <gtest/gtest.h>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/named.h"

namespace {

struct PidFile : support::Named {
    std::string content;
    int pid;
};

class PidFiles : public testing::TestWithParam<PidFile> {};

TEST_P(PidFiles, hold_a_number_on_their_first_line) {
    support::write_file(leases::pid_file, GetParam().content);
    const int descriptors = support::open_descriptors();
    EXPECT_EQ(getPid_sql(leases::pid_file), GetParam().pid);
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

INSTANTIATE_TEST_SUITE_P(All, PidFiles,
                         testing::Values(PidFile{"OneLine", "1234\n", 1234}, PidFile{"NoLineBreak", "1234", 1234},
                                         PidFile{"TwoLines", "12\n34\n", 12}, PidFile{"BlanksInFront", " \t12\n", 12},
                                         PidFile{"TextBehind", "12 dnsmasq\n", 12}, PidFile{"Text", "dnsmasq\n", 0},
                                         PidFile{"Empty", "", 0}, PidFile{"EmptyFirstLine", "\n12\n", 0},
                                         PidFile{"Negative", "-12\n", -12},
                                         PidFile{"NumberEndsAt99Characters", std::string(98, ' ') + "12\n", 1},
                                         PidFile{"NumberBehind99Characters", std::string(99, ' ') + "12\n", 0}),
                         [](const auto &test) { return test.param.name; });

TEST(PidFile, that_does_not_exist_has_no_process) {
    EXPECT_EQ(getPid_sql("/var/no.pid"), -1);
    EXPECT_EQ(getPid_sql("/var/no/directory/at/all"), -1);
    EXPECT_EQ(getPid_sql(""), -1);
}

TEST(PidFile, that_is_a_directory_has_process_zero) {
    const int descriptors = support::open_descriptors();
    EXPECT_EQ(getPid_sql("/var"), 0);
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

}  // namespace
