// Host names of DHCP clients.
#pragma once

#include <cstddef>

namespace routerdb {

/// Room that a host name takes, its terminator included.
inline constexpr std::size_t host_name_width = 128;

/// Asks the server for its leases and looks for a MAC address in a text lease file.
/// @param mac       in upper case, with colons
/// @param hostname  room for host_name_width bytes; untouched when no line matches
/// @return whether the file could be read
bool find_host_name(const char *mac, char *hostname, const char *lease_file, const char *pid_file);

/// The same with the files of the router's DHCP server. An empty address has no name.
void find_host_name(const char *mac, char *hostname);

}  // namespace routerdb
