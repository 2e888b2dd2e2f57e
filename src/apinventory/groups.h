// Reading WLAN groups and zero-configuration groups.
#pragma once

#include "routerdb.h"

namespace routerdb {

/// Clears the record and reads a WLAN group into it.
/// @return what closing the connection returned; what the message returned when the database cannot be opened
int read_wlan_group(DevInfo &record, int id);

/// Reads the default zero-configuration group. An empty table leaves the record as it is.
/// @return 0 for an empty table; the length of the message when the database cannot be opened; else 1
int read_default_zero_config(DevInfo &record);

/// Clears the record and reads a zero-configuration group into it.
/// @return 0, or -1 when the database cannot be opened
int read_zero_config(DevInfo &record, int id);

}  // namespace routerdb
