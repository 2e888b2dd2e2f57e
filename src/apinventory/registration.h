// Access points that report themselves.
#pragma once

#include <cstdint>

#include "build_profile.h"
#include "core/shared_connection.h"
#include "core/transaction.h"
#include "routerdb.h"

namespace routerdb {

/// Results of a lookup by MAC address.
enum : int { lookup_failed = -1, is_new = 0, is_known = 1 };

/// Looks an access point up by its MAC address.
/// @param sn  receives the serial number of a known one
int find_known(const DevInfo &device, unsigned long &sn);

/// How the statements of a registration are run: each by itself, the readings on the connection of their call, or all
/// of them in one transaction.
class Road {
public:
    explicit Road(SharedConnection &readings) : readings_(&readings) {}
    explicit Road(Transaction &transaction) : transaction_(&transaction) {}

    /// Whether nobody else writes meanwhile.
    bool alone() const { return transaction() != nullptr; }

    /// What came of a query.
    struct Matches {
        bool succeeded;
        unsigned count;
    };

    /// Counts the rows of a query.
    Matches count(const Text &sql) const;

    /// Looks an access point up. A known one's serial number is read.
    Matches find(const DevInfo &device, unsigned long &sn) const;

    /// Runs a statement.
    /// @return 0 or -1
    int run(const Text &sql) const;

private:
    /// Null where registrations are written statement by statement.
    Transaction *transaction() const { return build_profile.registers_at_once ? transaction_ : nullptr; }

    SharedConnection *readings_ = nullptr;
    Transaction *transaction_ = nullptr;
};

/// Looks an access point up and, if it is new, removes the row of another device that had its IP address before.
/// @param sn  receives its serial number, be it known or new
int find_or_make_way(const DevInfo &device, unsigned long &sn, const Road &road);

/// Registers an access point.
/// @return its serial number as an int, or -1
int register_device(const DevInfo &device);

/// Writes a record into the rows of its MAC address.
void save_device(const DevInfo &device);

/// Writes the configuration in a record into the row of its serial number.
/// @return 0 or -1
int update_device(const DevInfo &device);

}  // namespace routerdb
