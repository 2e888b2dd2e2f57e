#include "dhcp/host_name.h"

#include <cstdio>
#include <cstring>

#include "core/paths.h"
#include "dhcp/lease_file.h"
#include "text/text.h"

namespace routerdb {

namespace {

constexpr std::size_t line_length = 256;

/// What callers see of a line.
struct LeaseLine {
    char mac[32];
    char hostname[host_name_width];
};

void to_upper_case(char *text) {
    for (; *text != '\0'; ++text) {
        if (*text >= 'a' && *text <= 'z') {
            *text = static_cast<char>(*text - 'a' + 'A');
        }
    }
}

/// Reads expiry, MAC address, IP address and host name. What a line lacks is empty. The words are read whole before
/// they are cut, or the rest of one would be taken for the next.
void parse(const char *line, LeaseLine &lease) {
    char mac[line_length + 1] = "";
    char hostname[line_length + 1] = "";
    std::sscanf(line, "%*d %256s %*s %256s", mac, hostname);
    copy_cut(mac, lease.mac, sizeof(lease.mac));
    copy_cut(hostname, lease.hostname, sizeof(lease.hostname));
    to_upper_case(lease.mac);
}

/// Asks the server for its leases and reads them.
/// @param wants_more  takes a lease
/// @return whether the file could be read
template <typename WantsMore>
bool walk_leases(const char *lease_file, const char *pid_file, WantsMore wants_more) {
    hold_open(lease_file);
    LeaseFile file(lease_file, pid_file);
    if (!file.is_open()) {
        return false;
    }
    char line[line_length + 1];
    LeaseLine lease;
    bool more = true;
    while (more && std::fgets(line, sizeof(line), file.stream()) != nullptr) {
        parse(line, lease);
        more = wants_more(lease);
    }
    return true;
}

}  // namespace

bool find_host_name(const char *mac, char *hostname, const char *lease_file, const char *pid_file) {
    return walk_leases(lease_file, pid_file, [&](const LeaseLine &lease) {
        const bool matches = std::strcmp(lease.mac, mac) == 0;
        if (matches) {
            copy_cut(lease.hostname, hostname, host_name_width);
        }
        return !matches;
    });
}

void find_host_name(const char *mac, char *hostname) {
    if (*mac != '\0') {
        find_host_name(mac, hostname, paths::text_leases, paths::dhcp_server_pid);
    }
}

void HostNames::find(const char *mac, char *hostname) {
    if (!leases_.enabled || *mac == '\0') {
        return find_host_name(mac, hostname);
    }
    if (!known_) {
        leases_.clear();
        return read(mac, hostname);
    }
    const Lease *const found = leases_.find([mac](const Lease &lease) { return std::strcmp(lease.mac(), mac) == 0; });
    if (found != nullptr) {
        copy_cut(found->hostname(), hostname, host_name_width);
    }
}

/// Looks in the file and remembers what is there. Without memory for all of it, the next lookup reads it again.
void HostNames::read(const char *mac, char *hostname) {
    bool found = false;
    bool complete = true;
    const bool readable = walk_leases(paths::text_leases, paths::dhcp_server_pid, [&](const LeaseLine &line) {
        if (!found && std::strcmp(line.mac, mac) == 0) {
            copy_cut(line.hostname, hostname, host_name_width);
            found = true;
        }
        complete = complete && leases_.add({line.mac, line.hostname}) != nullptr;
        return complete || !found;
    });
    known_ = readable && complete;
}

}  // namespace routerdb
