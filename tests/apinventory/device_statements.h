// One access point, and the statements that write it, written out.
#pragma once

#include <string>
#include <vector>

#include "routerdb.h"

namespace statements {

/// An access point with the number 77 whose texts are "c" and the number of their columns, so that each shows where it
/// belongs. Addresses, count of networks and transmit powers (55 and 66) are real ones.
DevInfo sample_device(const std::string &wlan_count = "8");

/// The update of a registration. So many networks are written, whatever the count says.
std::string registration_of_new(const std::string &wlan_count = "8", int wlans = 8);
std::string registration_of_known(const std::string &wlan_count = "8", int wlans = 8);

/// The update of DB_saveinfo.
std::string saving(const std::string &wlan_count = "8", int wlans = 8);

/// The update of DB_UpdateInfo, with the fragments of the transmit powers.
std::string configuration(int wlans = 8, const std::string &first_power = " Dev_Wlan_Txpower='55',",
                          const std::string &second_power = " Dev_Wlan_Txpower_sec='66',");

/// What a recorder notes of a write: the settings that go before it, and its statement.
std::vector<std::string> write_of(const std::string &sql);

}  // namespace statements
