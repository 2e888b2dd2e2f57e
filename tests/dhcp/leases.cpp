#include "dhcp/leases.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/database.h"
#include "support/record.h"

namespace leases {

std::string record(std::uint32_t expiry, const std::string &ip, const std::string &mac, const std::string &host) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(expiry >> shift);
    }
    return support::Record(36)
        .unterminated(0, bytes)
        .unterminated(4, ip)
        .unterminated(8, mac)
        .unterminated(14, host.substr(0, 20))
        .unterminated(34, "pp")
        .bytes();
}

std::vector<std::string> texts(const LeaseNode *head) {
    std::vector<std::string> texts;
    for (const LeaseNode *node = head; node != nullptr; node = node->next) {
        texts.push_back(std::string(node->ip) + " " + node->mac + " " + node->expiry + " " + node->hostname);
    }
    return texts;
}

std::vector<std::string> read(const std::string &content) {
    support::write_file(binary_file, content);
    LeaseNode *head = nullptr;
    const int count = get_addrserver_leases_sql(&head, binary_file, "/var/no.pid");
    const std::vector<std::string> found = texts(head);
    EXPECT_EQ(count, static_cast<int>(found.size()));
    free_leaselist_sql(&head);
    EXPECT_EQ(head, nullptr);
    return found;
}

std::string host_name(const std::string &mac, const std::string &content) {
    support::write_file(text_file, content);
    char host[129];
    std::memset(host, '#', sizeof(host));
    std::strcpy(host, "before");
    EXPECT_EQ(get_hostname_by_mac_from_lease(mac.c_str(), host, text_file, "/var/no.pid"), 1);
    EXPECT_EQ(host[128], '#');
    return host;
}

}  // namespace leases
