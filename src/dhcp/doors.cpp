// The exported functions for DHCP leases.
#include "dhcp/host_name.h"
#include "dhcp/lease_file.h"
#include "dhcp/lease_list.h"
#include "routerdb.h"

using namespace routerdb;

int getPid_sql(const char *pidFile) {
    return read_pid(pidFile);
}

void *get_buffer_sql(size_t size) {
    return new_block(size);
}

int free_buffer_sql(void *p, size_t size) {
    wipe_and_free(p, size);
    return 0;
}

void free_leaselist_sql(LeaseNode **head) {
    free_leases(*head);
}

void add_addrserverlease_sql(LeaseNode *mac_ip_list, const LeaseRecord *lease) {
    fill_node(mac_ip_list, lease);
}

int get_addrserver_leases_sql(LeaseNode **head, const char *leaseFile, const char *pidFile) {
    return read_leases(*head, leaseFile, pidFile);
}

int get_hostname_by_mac_from_lease(const char *mac, char *hostname, const char *leaseFile, const char *pidFile) {
    return find_host_name(mac, hostname, leaseFile, pidFile) ? 1 : 0;
}

void get_hostname_by_mac(const char *mac, char *hostname, int /*flag*/) {
    if (mac != nullptr && hostname != nullptr) {
        find_host_name(mac, hostname);
    }
}
