// Totals over all access points.
#pragma once

#include "core/shared_connection.h"

namespace routerdb {

/// What is printed behind every page.
struct Totals {
    int devices;  // with an address
    int online;
    int stations;  // 0 without devices
};

/// Reads all of them; one that cannot be read is what its statement gives for that.
Totals read_totals(SharedConnection &connection);

/// Access points that are online.
int count_online(SharedConnection *shared = nullptr);

}  // namespace routerdb
