// The leases of the DHCP server, which peers read once for a list.
#pragma once

#include <map>
#include <string>

namespace bench {

/// Asks the DHCP server for its leases and reads them.
class Leases {
public:
    Leases();

    /// Empty for a MAC address without a lease.
    const char *host_name(const char *mac) const;

private:
    std::map<std::string, std::string> host_names_;
};

}  // namespace bench
