// Lease files and pid files of the tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "routerdb.h"

namespace leases {

inline constexpr char binary_file[] = "/var/udhcpd.leases";
inline constexpr char text_file[] = "/var/dhcp.leases";
inline constexpr char pid_file[] = "/var/run/dnsmasq/dnsmasq.pid";

/// A record of the binary lease file, byte by byte. What is longer than its field is refused.
std::string record(std::uint32_t expiry, const std::string &ip, const std::string &mac, const std::string &host);

inline const std::string header(8, 'h');
inline const std::string some_mac("\x00\x1a\x2b\x3c\xd4\xff", 6);
inline const std::string no_mac(6, '\0');
inline const std::string some_ip("\xc0\xa8\x01\x64");  // 192.168.1.100

/// The leases of a binary file with this content, each as "192.168.1.100 00:1A:2B:3C:D4:FF 10 host".
std::vector<std::string> read(const std::string &content);

/// The texts of the nodes of a list.
std::vector<std::string> texts(const LeaseNode *head);

/// The host name of an address in a text lease file, in the buffer of a caller that holds "before".
std::string host_name(const std::string &mac, const std::string &content);

}  // namespace leases
