// What the rules of one list refer to.
#pragma once

#include <sqlite3.h>

#include "core/remembered.h"
#include "dhcp/host_name.h"
#include "routerdb.h"
#include "rules/catalogue.h"

namespace routerdb {

/// Clears `group` and reads the time group of an id into it; without one it stays clear. A failed prepare is written to
/// standard output.
/// @return whether the lookup went well, with or without a group
bool find_time_group(sqlite3 *db, int id, TimeGroupItem &group);

/// Clears `group` and reads name and range of the IP group of an id into it; without one it stays clear. A failed
/// prepare is written to standard output.
/// @return whether the lookup went well, with or without a group
bool find_ip_group(sqlite3 *db, int id, IpGroupItem &group);

/// Looks up for one list, on the connection that reads the rules: its open statement pins what the groups are.
class References {
public:
    explicit References(sqlite3 *db) : db_(db) {}

    void find_time_group(int id, TimeGroupItem &group);
    void find_ip_group(int id, IpGroupItem &group);

    Catalogue catalogue;
    HostNames host_names;

private:
    template <typename Group>
    struct Known {
        int id;
        Group group;
    };

    template <typename Group>
    void find(Remembered<Known<Group>> &known, bool (*look_up)(sqlite3 *db, int id, Group &group), int id,
              Group &group);

    sqlite3 *db_;
    Remembered<Known<TimeGroupItem>> time_groups_;
    Remembered<Known<IpGroupItem>> ip_groups_;
};

}  // namespace routerdb
