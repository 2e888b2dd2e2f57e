// Reading access points.
#pragma once

#include "apinventory/member_reader.h"

namespace routerdb {

/// Clears the record and reads the access point of a serial number into it.
/// @return the number of rows
int read_device_by_sn(DevInfo &device, unsigned long sn, Ssids ssids);

/// Reads all access points, in order of their addresses, onto the heap.
/// @return whether there is one
bool read_all_devices(ApDevList &list, Ssids ssids);

/// Releases the records of a list.
void free_devices(ApDevList &list);

}  // namespace routerdb
