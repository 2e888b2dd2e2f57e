// The stations of one access point.
#pragma once

namespace routerdb {

/// Asks the access point at an address for its stations and prints them as JSON. An address that is refused has the
/// list without elements.
void print_stations(const char *device_address);

}  // namespace routerdb
