// The memory of lease lists: wiped before it is freed, and what happens without any.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/wrapped_calls.h"

namespace {

using leases::header;
using leases::record;
using leases::some_ip;
using leases::some_mac;
using support::WrappedCalls;
using Lines = std::vector<std::string>;

void write_three_leases() {
    support::write_file(leases::binary_file, header + record(1, some_ip, some_mac, "a") +
                                                 record(2, some_ip, some_mac, "b") + record(3, some_ip, some_mac, "c"));
}

TEST(LeaseMemory, is_one_block_per_node) {
    write_three_leases();
    const WrappedCalls calls;
    LeaseNode *head = nullptr;
    ASSERT_EQ(get_addrserver_leases_sql(&head, leases::binary_file, "/var/no.pid"), 3);
    EXPECT_EQ(calls.blocks(), std::vector<std::size_t>(3, sizeof(LeaseNode)));
    free_leaselist_sql(&head);
    EXPECT_EQ(calls.blocks(), std::vector<std::size_t>());
}

TEST(LeaseMemory, of_a_list_is_zero_when_it_is_freed) {
    write_three_leases();
    const WrappedCalls calls;
    LeaseNode *head = nullptr;
    ASSERT_EQ(get_addrserver_leases_sql(&head, leases::binary_file, "/var/no.pid"), 3);
    ASSERT_STREQ(head->hostname, "a");
    free_leaselist_sql(&head);
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(calls.contents_when_freed(), Lines(3, std::string(sizeof(LeaseNode), '\0')));
}

TEST(LeaseMemory, of_an_empty_list_is_nothing_to_free) {
    const WrappedCalls calls;
    LeaseNode *head = nullptr;
    free_leaselist_sql(&head);
    EXPECT_EQ(calls.contents_when_freed(), Lines());
}

TEST(LeaseMemory, that_runs_out_ends_the_list_with_the_nodes_made_so_far) {
    write_three_leases();
    const Lines whole{"192.168.1.100 00:1A:2B:3C:D4:FF 1 a", "192.168.1.100 00:1A:2B:3C:D4:FF 2 b"};
    for (int n = 1; n <= 3; ++n) {
        const int descriptors = support::open_descriptors();
        WrappedCalls calls;
        calls.fail("malloc", n, ENOMEM);
        LeaseNode *head = nullptr;
        support::expect_errno(
            ENOMEM, [&] { EXPECT_EQ(get_addrserver_leases_sql(&head, leases::binary_file, "/var/no.pid"), n - 1); });
        EXPECT_TRUE(calls.failed());
        EXPECT_EQ(leases::texts(head), Lines(whole.begin(), whole.begin() + (n - 1)));
        free_leaselist_sql(&head);
        EXPECT_EQ(support::open_descriptors(), descriptors);
    }
}

TEST(LeaseBuffer, is_a_block_of_zero_bytes) {
    for (const std::size_t size : {1U, 36U, 252U, 100000U}) {
        std::free(std::memset(std::malloc(size), 0x5a, size));  // what comes next is likely this
        const WrappedCalls calls;
        void *block = get_buffer_sql(size);
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(calls.blocks(), std::vector<std::size_t>{size});
        EXPECT_EQ(std::string(static_cast<const char *>(block), size), std::string(size, '\0'));
        EXPECT_EQ(free_buffer_sql(block, size), 0);
        EXPECT_EQ(calls.blocks(), std::vector<std::size_t>());
    }
}

TEST(LeaseBuffer, is_null_without_memory) {
    WrappedCalls calls;
    calls.fail("malloc", 1, ENOMEM);
    errno = 0;
    EXPECT_EQ(get_buffer_sql(10), nullptr);
    EXPECT_EQ(errno, ENOMEM) << "in either profile";
    EXPECT_TRUE(calls.failed());
}

TEST(LeaseBuffer, is_wiped_over_the_size_given_when_it_is_freed) {
    const WrappedCalls calls;
    void *block = get_buffer_sql(10);
    std::memcpy(block, "0123456789", 10);
    EXPECT_EQ(free_buffer_sql(block, 6), 0);
    EXPECT_EQ(calls.contents_when_freed(), Lines{std::string(6, '\0') + "6789"});
}

TEST(LeaseBuffer, may_be_null_when_it_is_freed) {
    EXPECT_EQ(free_buffer_sql(nullptr, 0), 0);
    EXPECT_EQ(free_buffer_sql(nullptr, 100), 0);
}

}  // namespace
