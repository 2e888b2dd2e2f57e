// Zero-configuration groups as JSON.
#pragma once

namespace routerdb {

/// Prints a summary of all groups.
/// @return what closing the connection returned, or what the last print did
int print_zero_config_groups();

}  // namespace routerdb
