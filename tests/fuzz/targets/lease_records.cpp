// The binary lease file.
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "binary lease files: as many nodes as leases count, each with its texts";

void fuzz::prepare() {}

namespace {

constexpr char lease_file[] = "/tmp/leases";
constexpr char pid_file[] = "/tmp/pid";

/// Leases in a file that count: an expiry and a MAC address that are not all zero.
int leases_in(const std::string &file) {
    constexpr std::size_t header = 8;
    constexpr std::size_t record = 36;
    int count = 0;
    for (std::size_t place = header; place + record <= file.size(); place += record) {
        const std::string expiry(file, place, 4);
        const std::string mac(file, place + 8, 6);
        count += expiry != std::string(4, '\0') && mac != std::string(6, '\0') ? 1 : 0;
    }
    return count;
}

}  // namespace

void fuzz::run(Input input) {
    put_file(pid_file, input.take_line());
    const std::string file = input.take_rest();
    put_file(lease_file, file);
    LeaseNode *head = nullptr;
    const int count = get_addrserver_leases_sql(&head, lease_file, pid_file);
    int nodes = 0;
    for (const LeaseNode *node = head; node != nullptr; node = node->next) {
        ++nodes;
        require(node->unused == 0 && std::strlen(node->mac) == 17 && strnlen(node->ip, sizeof(node->ip)) <= 15 &&
                    strnlen(node->expiry, sizeof(node->expiry)) <= 10 &&
                    strnlen(node->hostname, sizeof(node->hostname)) <= 20,
                "a node with texts that no lease has");
    }
    require(nodes == count && count == leases_in(file), "another number of leases");
    free_leaselist_sql(&head);
    require(head == nullptr, "a list that is not empty afterwards");
}
