// An access point that registers again and again.
#pragma once

#include <cstring>
#include <string>

#include "routerdb.h"

namespace soak {

/// Access point n of so many, which bears the number of its registration as its name and its firmware's.
inline DevInfo access_point(long n, long of_so_many) {
    DevInfo device{};
    const std::string number = std::to_string(10 + n % of_so_many);
    std::strcpy(device.Dev_MAC, ("00:00:00:00:01:" + number).c_str());
    std::strcpy(device.Dev_Ipaddress, ("10.0.0." + number).c_str());
    std::strcpy(device.Dev_Name, std::to_string(n).c_str());
    std::strcpy(device.Dev_SwName, device.Dev_Name);
    return device;
}

}  // namespace soak
