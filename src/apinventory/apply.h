// Giving an access point the settings of its group.
#pragma once

#include "routerdb.h"

namespace routerdb {

void apply_group(DevInfo &device, const DevInfo &group);
void apply_zero_config(DevInfo &device, const DevInfo &group);

}  // namespace routerdb
