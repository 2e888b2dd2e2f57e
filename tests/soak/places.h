// Places where databases are kept that fail, each with what makes it fail and what mends it.
#pragma once

#include <vector>

#include "support/named.h"

namespace soak {

inline constexpr char database_directory[] = "/etc/config/systemconf/database";
inline constexpr char backup_directory[] = "/var/tmpconfig/database";

struct Place : support::Named {
    void (*spoil)();
    void (*mend)();
    int writers_errno;  // what those leave that write the main database, where failures are told; 0 where they work
    int readers_errno;  // and those that read it
    bool takes_writes;  // some at least
};

/// All of them.
std::vector<Place> places();

/// Databases of which all is garbage, and the like, are put back by put_router_back(); this puts back the rest.
void put_places_back();

}  // namespace soak
