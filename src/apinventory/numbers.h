// Numbers in the text fields of a record.
#pragma once

#include <string_view>

#include "routerdb.h"
#include "text/number.h"
#include "text/text.h"

namespace routerdb {

/// The sum of two numbers that a database may hold at their limits: there it goes on from the other end.
constexpr int wrapping_sum(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

/// Networks that an access point has in use, by its own count.
int wlans_in_use(const DevInfo &device);

/// An IPv4 address as a number in network order, all bits set for a text that is no address: the serial number of a
/// new access point.
unsigned long address_in_network_order(std::string_view address);

/// The same in host order: what lists are ordered by.
unsigned long address_in_host_order(std::string_view address);

}  // namespace routerdb
