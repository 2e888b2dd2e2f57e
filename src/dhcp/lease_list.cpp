// The assertions are for callers, also in a release.
#undef NDEBUG

#include "dhcp/lease_list.h"

#include <arpa/inet.h>

#include <cassert>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "dhcp/lease_file.h"
#include "text/text.h"

namespace routerdb {

namespace {

static_assert(sizeof(LeaseRecord) == 36);
static_assert(sizeof(LeaseNode) == (sizeof(void *) == 4 ? 252 : 256));

/// Whether the record stands for a lease that counts.
bool counts(const LeaseRecord &lease) {
    constexpr std::uint8_t no_mac[sizeof(lease.mac)] = {};
    return lease.expiry != 0 && std::memcmp(lease.mac, no_mac, sizeof(no_mac)) != 0;
}

}  // namespace

void *new_block(std::size_t size) {
    void *block = std::malloc(size);
    if (block != nullptr) {
        std::memset(block, 0, size);
    }
    return block;
}

void wipe_and_free(void *block, std::size_t size) {
    if (block != nullptr) {
        explicit_bzero(block, size);
        std::free(block);
    }
}

void fill_node(LeaseNode *mac_ip_list, const LeaseRecord *lease) {
    assert(mac_ip_list);
    assert(lease);
    mac_ip_list->address = lease->ip;
    const std::uint8_t *mac = lease->mac;
    std::snprintf(mac_ip_list->mac, sizeof(mac_ip_list->mac), "%02X:%02X:%02X:%02X:%02X:%02X", mac[0], mac[1], mac[2],
                  mac[3], mac[4], mac[5]);
    std::snprintf(mac_ip_list->ip, sizeof(mac_ip_list->ip), "%s", inet_ntoa(in_addr{lease->ip}));
    std::snprintf(mac_ip_list->expiry, sizeof(mac_ip_list->expiry), "%" PRIu32, ntohl(lease->expiry));
    const std::string_view name = field_text(lease->hostname, sizeof(lease->hostname));
    std::memcpy(mac_ip_list->hostname, name.data(), name.size());
    mac_ip_list->hostname[name.size()] = '\0';
}

int read_leases(LeaseNode *&head, const char *lease_file, const char *pid_file) {
    LeaseFile file(lease_file, pid_file);
    char header[8];
    if (!file.is_open() || std::fread(header, sizeof(header), 1, file.stream()) != 1) {
        return 0;
    }
    int count = 0;
    LeaseNode **link = &head;
    LeaseRecord lease;
    while (std::fread(&lease, sizeof(lease), 1, file.stream()) == 1) {
        if (!counts(lease)) {
            continue;
        }
        auto *node = static_cast<LeaseNode *>(new_block(sizeof(LeaseNode)));
        if (node == nullptr) {
            file.call().fail(ENOMEM);
            break;
        }
        fill_node(node, &lease);
        *link = node;
        link = &node->next;
        ++count;
    }
    return count;
}

void free_leases(LeaseNode *&head) {
    while (head != nullptr) {
        LeaseNode *const node = head;
        head = node->next;
        wipe_and_free(node, sizeof(LeaseNode));
    }
}

}  // namespace routerdb
