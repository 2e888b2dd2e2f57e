// The binary lease file as a linked list.
#pragma once

#include <cstddef>

#include "routerdb.h"

namespace routerdb {

/// Zero bytes from the heap; null without memory.
void *new_block(std::size_t size);

/// Overwrites a block and frees it. Null is allowed.
void wipe_and_free(void *block, std::size_t size);

/// Fills a node. A null argument ends the process.
void fill_node(LeaseNode *mac_ip_list, const LeaseRecord *lease);

/// Appends the leases of a file to an empty list.
/// @return how many there are
int read_leases(LeaseNode *&head, const char *lease_file, const char *pid_file);

/// Frees the nodes and empties the list.
void free_leases(LeaseNode *&head);

}  // namespace routerdb
