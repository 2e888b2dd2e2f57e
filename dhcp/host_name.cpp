#include "dhcp/host_name.h"

#include <cstdio>
#include <cstring>

#include "core/paths.h"
#include "core/text.h"
#include "dhcp/lease_file.h"

namespace routerdb {

namespace {

constexpr std::size_t line_length = 256;

/// The fields of a line, each with room for the whole of it.
struct LeaseLine {
    char mac[line_length + 1];
    char ip[line_length + 1];
    char hostname[line_length + 1];
};

void to_upper_case(char *text) {
    for (; *text != '\0'; ++text) {
        if (*text >= 'a' && *text <= 'z') {
            *text = static_cast<char>(*text - 'a' + 'A');
        }
    }
}

/// Reads expiry, MAC address, IP address and host name. What a line lacks is empty.
void parse(const char *line, LeaseLine &lease) {
    int expiry = 0;
    lease.mac[0] = lease.ip[0] = lease.hostname[0] = '\0';
    // NOLINTNEXTLINE(cert-err34-c): the expiry is not used
    std::sscanf(line, "%d %256s %256s %256s", &expiry, lease.mac, lease.ip, lease.hostname);
    to_upper_case(lease.mac);
}

}  // namespace

bool find_host_name(const char *mac, char *hostname, const char *lease_file, const char *pid_file) {
    hold_open(lease_file);
    LeaseFile file(lease_file, pid_file);
    if (!file.is_open()) {
        return false;
    }
    char line[line_length + 1];
    LeaseLine lease;
    while (std::fgets(line, sizeof(line), file.stream()) != nullptr) {
        parse(line, lease);
        if (std::strcmp(lease.mac, mac) == 0) {
            copy_cut(lease.hostname, hostname, host_name_width);
            break;
        }
    }
    return true;
}

void find_host_name(const char *mac, char *hostname) {
    if (*mac != '\0') {
        find_host_name(mac, hostname, paths::text_leases, paths::dhcp_server_pid);
    }
}

}  // namespace routerdb
