// Access points that report themselves.
#pragma once

#include <cstdint>

#include "core/shared_connection.h"
#include "routerdb.h"

namespace routerdb {

/// Results of a lookup by MAC address.
enum : int { lookup_failed = -1, is_new = 0, is_known = 1 };

/// Looks an access point up by its MAC address.
/// @param sn  receives the serial number of a known one
int find_known(const DevInfo &device, unsigned long &sn);

/// Looks an access point up and, if it is new, removes the row of another device that had its IP address before.
/// @param sn          receives its serial number, be it known or new
/// @param connection  of the call that the lookup is part of
int find_or_make_way(const DevInfo &device, unsigned long &sn, SharedConnection &connection);

/// Registers an access point.
/// @return its serial number as an int, or -1
int register_device(const DevInfo &device);

/// Writes a record into the rows of its MAC address.
void save_device(const DevInfo &device);

/// Writes the configuration in a record into the row of its serial number.
/// @return 0 or -1
int update_device(const DevInfo &device);

}  // namespace routerdb
