// Host names of DHCP clients.
#pragma once

#include <cstddef>

#include "core/remembered.h"

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

/// Looks for one call in the leases of the router's DHCP server, which is asked for them once where the build profile
/// remembers lookups.
class HostNames {
public:
    /// As above. An empty address has no name.
    void find(const char *mac, char *hostname);

private:
    struct Lease {
        const char *texts[2];  // MAC address, host name

        const char *mac() const { return texts[0]; }
        const char *hostname() const { return texts[1]; }
    };

    void read(const char *mac, char *hostname);

    bool known_ = false;
    Remembered<Lease> leases_;
};

}  // namespace routerdb
