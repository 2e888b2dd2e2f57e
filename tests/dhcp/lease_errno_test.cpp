// What reading leases leaves in errno.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/left_errno.h"

namespace {

using support::expect_errno;
using support::found_errno;

/// Every function that reads a lease file.
void expect_of_readings(int reason, const char *lease_file) {
    char hostname[128] = "";
    LeaseNode *head = nullptr;
    expect_errno(reason, [&] { get_hostname_by_mac_from_lease("06", hostname, lease_file, "/var/no.pid"); });
    expect_errno(reason, [&] { EXPECT_EQ(get_addrserver_leases_sql(&head, lease_file, "/var/no.pid"), 0); });
}

TEST(LeaseErrno, tells_of_a_file_that_is_not_there) {
    char hostname[128];
    expect_of_readings(ENOENT, "/var/none");
    expect_errno(ENOENT, [&] { get_hostname_by_mac("06", hostname, 0); });
}

TEST(LeaseErrno, does_not_tell_of_a_file_that_can_be_opened_and_not_be_read) {
    ASSERT_EQ(mkdir("/var/directory", 0755), 0);
    expect_of_readings(found_errno, "/var/directory");
}

TEST(LeaseErrno, is_left_alone_by_success) {
    support::write_file("/var/leases", "1 06 10.0.0.1 host\n");
    support::write_file("/var/dhcp.leases", "1 06 10.0.0.1 host\n");
    expect_of_readings(found_errno, "/var/leases");
    char hostname[128] = "";
    expect_errno(found_errno, [&] { get_hostname_by_mac("06", hostname, 0); });
    EXPECT_STREQ(hostname, "host");
    LeaseNode *head = nullptr;
    support::write_file("/var/leases", leases::header + leases::record(1, leases::some_ip, leases::some_mac, "a"));
    expect_errno(found_errno, [&] {
        EXPECT_EQ(get_addrserver_leases_sql(&head, "/var/leases", "/var/no.pid"), 1);
        free_leaselist_sql(&head);
    });
}

TEST(LeaseErrno, of_a_pid_file_is_that_of_the_system) {
    errno = 0;
    EXPECT_EQ(getPid_sql("/var/no.pid"), -1);
    EXPECT_EQ(errno, ENOENT) << "in either profile";
    support::write_file("/var/some.pid", "99999999999999999999\n");
    expect_errno(found_errno, [] { getPid_sql("/var/some.pid"); });
}

}  // namespace
