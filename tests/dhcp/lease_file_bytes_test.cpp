// Lease files that hold anything at all: what is read of them stays inside the buffers of the caller.
#include <gtest/gtest.h>

#include <random>

#include "dhcp/leases.h"
#include "support/database.h"

namespace {

constexpr char mac[] = "AA:BB:CC:DD:EE:0F";
const std::string line = "1700000000 AA:BB:CC:DD:EE:0F 192.168.1.2 phone\n";

std::string random_bytes(std::mt19937 &random, std::size_t size) {
    std::string bytes(size, '\0');
    for (char &byte : bytes) {
        byte = static_cast<char>(random());
    }
    return bytes;
}

TEST(TextLeaseFile, of_one_huge_line_has_no_lease_of_that_address) {
    EXPECT_EQ(leases::host_name(mac, std::string(8'000'000, 'x')), "before");
    EXPECT_EQ(leases::host_name(mac, std::string(8'000'000, ' ')), "before");
    EXPECT_EQ(leases::host_name(mac, std::string(8'000'000, '\0')), "before");
}

TEST(TextLeaseFile, of_a_hundred_thousand_lines_is_read_to_its_end) {
    std::string content;
    for (int i = 0; i < 100'000; ++i) {
        content += "1700000000 00:11:22:33:44:55 192.168.1.3 tablet\n";
    }
    EXPECT_EQ(leases::host_name(mac, content + line), "phone");
}

TEST(TextLeaseFile, with_zero_bytes_ends_its_lines_there) {
    const std::string zero(1, '\0');
    EXPECT_EQ(leases::host_name(mac, zero + line), "before");
    EXPECT_EQ(leases::host_name(mac, zero + "\n" + line), "phone");
    EXPECT_EQ(leases::host_name(mac, "1 AA:BB:CC:DD:EE:0F 10.0.0.1 ph" + zero + "one\n"), "ph");
    EXPECT_EQ(leases::host_name(mac, "1 AA:BB:CC" + zero + ":DD:EE:0F 10.0.0.1 phone\n"), "before");
}

TEST(TextLeaseFile, of_any_bytes_is_read_within_the_buffer) {
    std::mt19937 random(7);  // NOLINT(cert-msc32-c, cert-msc51-cpp): the same bytes in each run
    for (int round = 0; round < 50; ++round) {
        leases::host_name(mac, random_bytes(random, random() % 2000));
        leases::host_name(mac, "1 AA:BB:CC:DD:EE:0F 10.0.0.1 " + random_bytes(random, 400));
    }
}

TEST(TextLeaseFile, with_numbers_of_any_length_is_read) {
    EXPECT_EQ(leases::host_name(mac, std::string(200, '9') + " AA:BB:CC:DD:EE:0F 1.1.1.1 phone\n"), "phone");
    EXPECT_EQ(leases::host_name(mac, "-" + std::string(200, '9') + " AA:BB:CC:DD:EE:0F 1.1.1.1 phone\n"), "phone");
}

TEST(BinaryLeaseFile, of_any_bytes_is_read_within_its_nodes) {
    std::mt19937 random(7);  // NOLINT(cert-msc32-c, cert-msc51-cpp): the same bytes in each run
    for (int round = 0; round < 50; ++round) {
        const std::size_t size = random() % 4000;
        const std::size_t records = size < 8 ? 0 : (size - 8) / 36;
        EXPECT_LE(leases::read(random_bytes(random, size)).size(), records);
    }
}

TEST(BinaryLeaseFile, of_a_hundred_thousand_leases_is_read_whole) {
    const std::string record(36, 'x');
    std::string content = leases::header;
    for (int i = 0; i < 100'000; ++i) {
        content += record;
    }
    const std::vector<std::string> found = leases::read(content);
    ASSERT_EQ(found.size(), 100'000U);
    EXPECT_EQ(found.back(), "120.120.120.120 78:78:78:78:78:78 2021161080 " + std::string(20, 'x'));
}

}  // namespace
