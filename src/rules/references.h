// What the rules of one list refer to.
#pragma once

#include <sqlite3.h>

#include "appcatalog/catalogue.h"
#include "core/call_errno.h"
#include "core/remembered.h"
#include "core/statement.h"
#include "dhcp/host_name.h"
#include "routerdb.h"

namespace routerdb {

/// Clears `group` and reads the time group of an id into it; without one it stays clear. A failed prepare is written to
/// standard output.
/// @return whether the lookup went well, with or without a group
bool find_time_group(sqlite3 *db, int id, TimeGroupItem &group);

/// Clears `group` and reads name and range of the IP group of an id into it; without one it stays clear. A failed
/// prepare is written to standard output.
/// @return whether the lookup went well, with or without a group
bool find_ip_group(sqlite3 *db, int id, IpGroupItem &group);

/// Reads the row of a statement into a group.
using ReadGroup = void (*)(const Statement &statement, void *group);

/// Looks up for one list, on the connection that reads the rules: its open statement pins what the groups are.
class References {
public:
    /// @param call  learns of lookups that fail
    References(sqlite3 *db, CallErrno &call) : db_(db), call_(call) {}

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

    /// What has been found of one kind, and the statement that finds the rest.
    template <typename Group>
    struct Groups {
        Statement statement;
        Remembered<Known<Group>> known;
    };

    /// How a kind is looked up: by a text with a parameter, or by itself.
    template <typename Group>
    struct Lookup {
        const char *text;
        ReadGroup read;
        bool (*find)(sqlite3 *db, int id, Group &group);
    };

    template <typename Group>
    void find(Groups<Group> &groups, const Lookup<Group> &lookup, int id, Group &group);

    sqlite3 *db_;
    CallErrno &call_;
    Groups<TimeGroupItem> time_groups_;
    Groups<IpGroupItem> ip_groups_;
};

}  // namespace routerdb
