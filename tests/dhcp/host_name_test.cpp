// Host names from a text lease file.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using leases::host_name;
using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char mac[] = "AA:BB:CC:DD:EE:0F";

/// A lease file, and the host name that it holds for the address above.
struct LeaseText : support::Named {
    std::string content;
    std::string host;
};

std::string x(std::size_t length) {
    std::string text(length, 'x');
    return text;
}

const std::string line = "1700000000 AA:BB:CC:DD:EE:0F 192.168.1.2 phone\n";

const LeaseText texts[] = {
    {"OneLine", line, "phone"},
    {"WithClientId", "1700000000 AA:BB:CC:DD:EE:0F 192.168.1.2 phone 01:aa:bb:cc:dd:ee:0f\n", "phone"},
    {"NoLineBreak", "1700000000 AA:BB:CC:DD:EE:0F 192.168.1.2 phone", "phone"},
    {"LowerCaseInTheFile", "1700000000 aa:bb:cc:dd:ee:0f 192.168.1.2 phone\n", "phone"},
    {"MixedCaseInTheFile", "1700000000 aA:Bb:cc:DD:ee:0f 192.168.1.2 Phone\n", "Phone"},
    {"LaterLine", "1 AA:BB:CC:DD:EE:00 192.168.1.1 other\n" + line, "phone"},
    {"FirstOfTwo", line + "1700000000 AA:BB:CC:DD:EE:0F 192.168.1.2 second\n", "phone"},
    {"TabsAndBlanks", "  17\tAA:BB:CC:DD:EE:0F   192.168.1.2\t phone\n", "phone"},
    {"NegativeExpiry", "-1 AA:BB:CC:DD:EE:0F 192.168.1.2 phone\n", "phone"},
    {"AddressIsNotLookedAt", "1 AA:BB:CC:DD:EE:0F nowhere phone\n", "phone"},
    {"NoMatchingLine", "1 AA:BB:CC:DD:EE:00 192.168.1.1 other\n", "before"},
    {"EmptyFile", "", "before"},
    {"EmptyLines", "\n\n \n" + line, "phone"},
    {"NoHostName", "1 AA:BB:CC:DD:EE:0F 192.168.1.2\n", ""},
    {"MacOnly", "1 AA:BB:CC:DD:EE:0F\n", ""},
    {"ExpiryOnly", "1700000000\n" + line, "phone"},
    {"NoExpiry", "AA:BB:CC:DD:EE:0F 192.168.1.2 phone\n", "before"},
    {"ExpiryThatIsNoNumber", "never AA:BB:CC:DD:EE:0F 192.168.1.2 phone\n", "before"},
    {"MacOfTheWrongField", "1 192.168.1.2 AA:BB:CC:DD:EE:0F phone\n", "before"},
    {"MacThatIsLonger", "1 AA:BB:CC:DD:EE:0F:11 192.168.1.2 phone\n", "before"},
    {"HostNameOf127Characters", "1 AA:BB:CC:DD:EE:0F 192.168.1.2 " + x(127) + "\n", x(127)},
    {"HostNameOf128Characters", "1 AA:BB:CC:DD:EE:0F 192.168.1.2 " + x(128) + "\n", x(127)},
    {"HostNameOf200Characters", "1 AA:BB:CC:DD:EE:0F 192.168.1.2 " + x(200) + "\n", x(127)},
    {"LongMac", "1 " + x(200) + " 192.168.1.2 other\n" + line, "phone"},
    {"AddressThatFillsItsField", "1 AA:BB:CC:DD:EE:0F " + x(15) + " phone\n", "phone"},
    {"AddressThatIsLonger", "1 AA:BB:CC:DD:EE:0F " + x(16) + " phone\n", "phone"},
    {"LongAddress", "1 AA:BB:CC:DD:EE:0F " + x(200) + " phone\n", "phone"},
    {"LineOf256Characters", "1 AA:BB:CC:DD:EE:0F 192.168.1.2 phone " + x(218) + "\n", "phone"},
    {"LongLineBeforeIt", x(1000) + "\n" + line, "phone"},
    {"LongLineThatMatches", "1 AA:BB:CC:DD:EE:0F 192.168.1.2 phone " + x(1000) + "\n", "phone"},
    {"EndOfALongLineIsALineOfItsOwn", x(256) + line, "phone"},
    {"HostNameThatIsCutByTheLine", "1 AA:BB:CC:DD:EE:0F " + x(231) + " phone\n", "phon"},
};

class HostNames : public testing::TestWithParam<LeaseText> {};

TEST_P(HostNames, are_found_by_their_address_in_upper_case) {
    EXPECT_EQ(host_name(mac, GetParam().content), GetParam().host);
}

TEST_P(HostNames, are_never_found_by_an_address_in_lower_case) {
    EXPECT_EQ(host_name("aa:bb:cc:dd:ee:0f", GetParam().content), "before");
    EXPECT_EQ(host_name("AA:BB:CC:DD:EE:0f", GetParam().content), "before");
}

INSTANTIATE_TEST_SUITE_P(All, HostNames, testing::ValuesIn(texts), [](const auto &test) { return test.param.name; });

TEST(HostName, is_found_on_a_line_that_holds_no_address_when_none_is_asked_for) {
    EXPECT_EQ(host_name("", line), "before");
    EXPECT_EQ(host_name("", line + "nonsense\n"), "");
}

/// A line that holds this address, and its host name as a caller sees it who asks for another text.
std::string host_of(const std::string &in_the_file, const std::string &asked_for) {
    return host_name(asked_for, "1 " + in_the_file + " 192.168.1.2 phone\n");
}

TEST(HostName, is_found_by_the_31_characters_of_an_address_that_fit) {
    const std::string fitting(31, 'A');
    EXPECT_EQ(host_of(fitting, fitting), "phone");
    EXPECT_EQ(host_of(fitting + "B", fitting), "phone");
    EXPECT_EQ(host_of(fitting + "b" + x(168), fitting), "phone");
}

TEST(HostName, is_not_found_by_more_of_an_address_than_fits_or_by_less) {
    const std::string fitting(31, 'A');
    EXPECT_EQ(host_of(fitting + "B", fitting + "B"), "before");
    EXPECT_EQ(host_of(std::string(200, 'A'), std::string(200, 'A')), "before");
    EXPECT_EQ(host_of(fitting, std::string(30, 'A')), "before");
}

TEST(HostName, leaves_as_many_streams_of_the_lease_file_open_as_the_profile_says) {
    host_name(mac, line);  // whatever opens once is open now
    const int descriptors = support::open_descriptors();
    for (int call = 1; call <= 20; ++call) {
        host_name(call % 2 == 0 ? mac : "unknown", line);
        EXPECT_EQ(support::open_descriptors(), descriptors + (build_profile.closes_its_own ? 0 : call));
    }
}

TEST(HostName, says_that_the_file_cannot_be_opened_and_leaves_nothing_open) {
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    char host[128] = "before";
    const auto said = support::streams_of(
        [&] { EXPECT_EQ(get_hostname_by_mac_from_lease(mac, host, "/var/none", "/var/no.pid"), 0); });
    EXPECT_STREQ(host, "before");
    EXPECT_EQ(said.output, "");
    EXPECT_EQ(said.error, "could not open input file: No such file or directory\n");
    EXPECT_EQ(recorder.calls(), (Lines{"usleep 1000", "perror could not open input file"}));
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(RouterHostName, is_read_from_the_files_of_the_dhcp_server_whatever_the_flag) {
    support::write_file("/var/dhcp.leases", line);
    for (const int flag : {0, 1, -1}) {
        char host[128] = "before";
        get_hostname_by_mac("AA:BB:CC:DD:EE:0F", host, flag);
        EXPECT_STREQ(host, "phone");
    }
}

TEST(RouterHostName, is_found_by_what_fits_of_a_longer_address) {
    const std::string fitting(31, 'A');
    support::write_file("/var/dhcp.leases", "1 " + fitting + "B 192.168.1.2 phone\n");
    char host[128] = "before";
    get_hostname_by_mac((fitting + "B").c_str(), host, 0);
    EXPECT_STREQ(host, "before");
    get_hostname_by_mac(fitting.c_str(), host, 0);
    EXPECT_STREQ(host, "phone");
}

TEST(RouterHostName, is_not_looked_for_without_an_address_or_a_buffer) {
    support::write_file("/var/dhcp.leases", line + "nonsense\n");
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    char host[128] = "before";
    get_hostname_by_mac(nullptr, host, 0);
    get_hostname_by_mac("", host, 0);
    get_hostname_by_mac(mac, nullptr, 0);
    get_hostname_by_mac(nullptr, nullptr, 0);
    EXPECT_STREQ(host, "before");
    EXPECT_EQ(recorder.calls(), Lines());
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(RouterHostName, stays_unknown_without_a_lease_file) {
    char host[128] = "before";
    const auto said = support::streams_of([&] { get_hostname_by_mac(mac, host, 0); });
    EXPECT_STREQ(host, "before");
    EXPECT_EQ(said.error, "could not open input file: No such file or directory\n");
}

}  // namespace
