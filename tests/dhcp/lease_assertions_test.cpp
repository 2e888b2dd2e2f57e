// The assertions hold in a build that leaves assertions out.
#include <gtest/gtest.h>

#include <csignal>

#include "dhcp/lease_list.h"

namespace {

TEST(ReleaseLeaseNodeDeathTest, a_null_node_ends_the_process_with_an_assertion) {
    const LeaseRecord lease{};
    EXPECT_EXIT(routerdb::fill_node(nullptr, &lease), testing::KilledBySignal(SIGABRT),
                "Assertion `mac_ip_list' failed");
}

TEST(ReleaseLeaseNodeDeathTest, a_null_lease_ends_the_process_with_an_assertion) {
    LeaseNode node{};
    EXPECT_EXIT(routerdb::fill_node(&node, nullptr), testing::KilledBySignal(SIGABRT), "Assertion `lease' failed");
}

}  // namespace
