// Whether an access point has the settings of its group.
#pragma once

#include "routerdb.h"

namespace routerdb {

/// Compares with a WLAN group. Different group numbers are written to standard output.
bool differs_from_group(const DevInfo &device, const DevInfo &group);

/// Compares with a zero-configuration group.
bool differs_from_zero_config(const DevInfo &device, const DevInfo &group);

}  // namespace routerdb
