// The settings of one network, as configuration and groups write them: all but the BSSID, which is the access point's
// own.
#pragma once

#include "apinventory/fragments.h"

namespace routerdb {

// clang-format off
inline constexpr WlanFragment settings_of_wlan[] = {
    WLAN(blank, Enable, comma),
    WLAN(blank, Hide_Ssid, comma),
    WLAN(blank, Ssid, comma),
    WLAN(blank, VlanId, comma),
    WLAN(blank, Security, comma),
    WLAN(blank, Authmode, comma),
    WLAN(blank, Securitycipher, comma),
    WLAN(nothing, Wep_Type, comma),
    WLAN(nothing, Wep_Value, comma),
    WLAN(nothing, Psk_Type, comma),
    WLAN(nothing, Psk_Value, comma),
};
// clang-format on

}  // namespace routerdb
