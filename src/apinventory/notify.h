// Telling the rest of the system about access points.
#pragma once

#include <cstdint>

namespace routerdb {

enum class Event : std::uint8_t { added, modified };

/// Sends an event with the serial number of the access point.
void notify(Event event, unsigned long sn);

}  // namespace routerdb
