// The groups that rules reference by number.
#pragma once

#include <sqlite3.h>

#include "routerdb.h"

namespace routerdb {

/// Looks groups up on the connection that reads the rules.
class References {
public:
    explicit References(sqlite3 *db) : db_(db) {}

    /// Clears `group` and reads the time group of that id into it; without one it stays clear. A failed prepare is
    /// written to standard output.
    void find_time_group(int id, TimeGroupItem &group);

    /// Clears `group` and reads name and range of the IP group of that id into it; without one it stays clear. A failed
    /// prepare is written to standard output.
    void find_ip_group(int id, IpGroupItem &group);

private:
    sqlite3 *db_;
};

}  // namespace routerdb
