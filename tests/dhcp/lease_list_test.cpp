// Binary lease files as a list.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using leases::header;
using leases::no_mac;
using leases::read;
using leases::record;
using leases::some_ip;
using leases::some_mac;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char first[] = "192.168.1.100 00:1A:2B:3C:D4:FF 10 first";

const std::string first_record = record(10, some_ip, some_mac, "first");

TEST(LeaseList, holds_the_leases_in_the_order_of_the_file) {
    EXPECT_EQ(read(header + first_record + record(4294967295, std::string("\x0a\0\0\x01", 4), "\1\2\3\4\5\6", "") +
                   record(1, "\xff\xff\xff\xff", "\xff\xff\xff\xff\xff\xff", "third")),
              (Lines{first, "10.0.0.1 01:02:03:04:05:06 4294967295 ", "255.255.255.255 FF:FF:FF:FF:FF:FF 1 third"}));
}

TEST(LeaseList, is_empty_for_a_file_without_records) {
    EXPECT_EQ(read(header), Lines());
    EXPECT_EQ(read(""), Lines());
}

TEST(LeaseList, is_empty_when_the_header_is_cut_short) {
    for (std::size_t length = 1; length < 8; ++length) {
        EXPECT_EQ(read(header.substr(0, length)), Lines());
    }
}

TEST(LeaseList, ends_before_a_record_that_is_cut_short) {
    for (const std::size_t length : {1U, 4U, 14U, 34U, 35U}) {
        EXPECT_EQ(read(header + first_record + record(11, some_ip, some_mac, "second").substr(0, length)),
                  Lines{first});
    }
}

TEST(LeaseList, skips_a_record_without_a_mac_address) {
    EXPECT_EQ(read(header + record(9, some_ip, no_mac, "free") + first_record + record(9, some_ip, no_mac, "free")),
              Lines{first});
}

TEST(LeaseList, takes_a_mac_address_of_which_one_byte_is_not_zero) {
    for (std::size_t i = 0; i < 6; ++i) {
        std::string mac = no_mac;
        mac[i] = '\x01';
        EXPECT_EQ(read(header + record(9, some_ip, mac, "host")).size(), 1U) << i;
    }
}

TEST(LeaseList, adds_no_node_for_a_record_with_expiry_zero) {
    EXPECT_EQ(read(header + record(0, some_ip, some_mac, "expired") + first_record), Lines{first});
    EXPECT_EQ(read(header + record(0, some_ip, some_mac, "expired")), Lines());
}

TEST(LeaseList, takes_a_host_name_that_fills_its_field) {
    EXPECT_EQ(read(header + record(10, some_ip, some_mac, "nineteen-characters")),
              Lines{"192.168.1.100 00:1A:2B:3C:D4:FF 10 nineteen-characters"});
    EXPECT_EQ(read(header + record(10, some_ip, some_mac, "twenty-characters-xx")),
              Lines{"192.168.1.100 00:1A:2B:3C:D4:FF 10 twenty-characters-xx"});
}

TEST(LeaseList, has_nodes_that_are_zero_behind_their_texts) {
    support::write_file(leases::binary_file, header + first_record);
    LeaseNode *head = nullptr;
    ASSERT_EQ(get_addrserver_leases_sql(&head, leases::binary_file, "/var/no.pid"), 1);
    const std::string expected = support::Record(248)
                                     .text(4, "192.168.1.100")
                                     .text(44, "00:1A:2B:3C:D4:FF")
                                     .text(76, "10")
                                     .text(92, "first")
                                     .unterminated(244, some_ip)
                                     .bytes();
    EXPECT_EQ(support::difference(expected, {reinterpret_cast<const char *>(head), 248}), "");
    EXPECT_EQ(head->next, nullptr);
    free_leaselist_sql(&head);
}

TEST(LeaseList, is_not_limited_to_128_leases) {
    std::string content = header;
    for (int i = 0; i < 1000; ++i) {
        content += first_record;
    }
    EXPECT_EQ(read(content), Lines(1000, first));
}

TEST(LeaseList, leaves_no_descriptor_open) {
    const int descriptors = support::open_descriptors();
    read(header + first_record);
    read("");
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(LeaseList, says_that_the_file_cannot_be_opened) {
    LeaseNode *head = nullptr;
    const Recorder recorder;
    const auto said =
        support::streams_of([&] { EXPECT_EQ(get_addrserver_leases_sql(&head, "/var/none", "/var/no.pid"), 0); });
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(said.output, "");
    EXPECT_EQ(said.error, "could not open input file: No such file or directory\n");
    EXPECT_EQ(recorder.calls(), (Lines{"usleep 1000", "perror could not open input file"}));
}

TEST(LeaseList, of_a_directory_is_empty) {
    LeaseNode *head = nullptr;
    const auto said =
        support::streams_of([&] { EXPECT_EQ(get_addrserver_leases_sql(&head, "/var", "/var/no.pid"), 0); });
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(said.output + said.error, "");
}

TEST(LeaseNode, keeps_its_link_and_its_first_word_when_it_is_filled) {
    LeaseNode other{};
    LeaseNode node;
    std::memset(&node, 0x5a, sizeof(node));
    node.next = &other;
    LeaseRecord lease;
    std::memcpy(&lease, record(0x01020304, some_ip, some_mac, "host").data(), sizeof(lease));
    add_addrserverlease_sql(&node, &lease);
    EXPECT_EQ(node.unused, 0x5a5a5a5aU);
    EXPECT_EQ(node.next, &other);
    EXPECT_EQ(leases::texts(&node).front(), "192.168.1.100 00:1A:2B:3C:D4:FF 16909060 host");
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(&node.address), 4), some_ip);
}

TEST(LeaseNode, is_filled_from_a_lease_that_does_not_count_too) {
    LeaseNode node{};
    const LeaseRecord lease{};
    add_addrserverlease_sql(&node, &lease);
    EXPECT_EQ(leases::texts(&node).front(), "0.0.0.0 00:00:00:00:00:00 0 ");
}

TEST(LeaseNodeDeathTest, a_null_node_ends_the_process_with_an_assertion) {
    const LeaseRecord lease{};
    EXPECT_EXIT(add_addrserverlease_sql(nullptr, &lease), testing::KilledBySignal(SIGABRT),
                "Assertion `mac_ip_list' failed");
}

TEST(LeaseNodeDeathTest, a_null_lease_ends_the_process_with_an_assertion) {
    LeaseNode node{};
    EXPECT_EXIT(add_addrserverlease_sql(&node, nullptr), testing::KilledBySignal(SIGABRT), "Assertion `lease' failed");
}

TEST(LeaseNodeDeathTest, two_null_arguments_fail_the_assertion_of_the_node) {
    EXPECT_EXIT(add_addrserverlease_sql(nullptr, nullptr), testing::KilledBySignal(SIGABRT),
                "Assertion `mac_ip_list' failed");
}

}  // namespace
