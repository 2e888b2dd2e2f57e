#include "apinventory/compare.h"

#include <cstdio>

#include "apinventory/device_fields.h"
#include "apinventory/member.h"
#include "apinventory/numbers.h"

namespace routerdb {

namespace {

constexpr int wlans_of_one_radio = 4;
constexpr int wlans_of_two_radios = 8;

// The BSSID is the access point's own and never compared.
constexpr Member wlan_always[] = {
    WLAN_MEMBER(Enable),   WLAN_MEMBER(Hide_Ssid),      WLAN_MEMBER(Ssid),     WLAN_MEMBER(VlanId),
    WLAN_MEMBER(Security), WLAN_MEMBER(Securitycipher), WLAN_MEMBER(Authmode),
};
constexpr Member wlan_wep[] = {WLAN_MEMBER(Wep_Type), WLAN_MEMBER(Wep_Value)};
constexpr Member wlan_key[] = {WLAN_MEMBER(Psk_Type), WLAN_MEMBER(Psk_Value)};

// Deliberate: channel, rate, mode, bandwidth, power, receive option and station limit do not count.
constexpr Member radio_always[] = {
    RADIO_MEMBER(Ampdu), RADIO_MEMBER(Isolate), RADIO_MEMBER(Beacon_Inertval),   RADIO_MEMBER(Rts),
    RADIO_MEMBER(Cts),   RADIO_MEMBER(ShortGI), RADIO_MEMBER(CoverageThreshold),
};
constexpr Member radio_power[] = {RADIO_MEMBER(Txpower)};
constexpr Member reboot[] = {DEVICE_MEMBER(Dev_RebootTime_Enable), DEVICE_MEMBER(Dev_RebootTime)};

/// WEP and key texts count when the group's security uses them.
bool wlan_differs(const DevWlanEntry &device, const DevWlanEntry &group) {
    const int cipher = number_in(field_text(group.Securitycipher));
    const int authentication = number_in(field_text(group.Authmode));
    return any_differs(wlan_always, &device, &group) ||
           ((cipher == 1 || cipher == 2) && any_differs(wlan_wep, &device, &group)) ||
           (authentication == 1 && any_differs(wlan_key, &device, &group));
}

/// @param power  whether the transmit power counts
bool wireless_differs(const DevInfo &device, const DevInfo &group, bool power) {
    const int in_use = wlans_in_use(device);
    const int compared = in_use == wlans_of_one_radio ? wlans_of_one_radio : ROUTERDB_WLANS;
    for (int number = 0; number < compared; ++number) {
        if (wlan_differs(device.wlan[number], group.wlan[number])) {
            return true;
        }
    }
    const auto radio_differs = [&](std::size_t distance) {
        const char *a = reinterpret_cast<const char *>(&device) + distance;
        const char *b = reinterpret_cast<const char *>(&group) + distance;
        return any_differs(radio_always, a, b) || (power && any_differs(radio_power, a, b));
    };
    return radio_differs(0) || (in_use == wlans_of_two_radios && radio_differs(second_radio));
}

}  // namespace

bool differs_from_group(const DevInfo &device, const DevInfo &group) {
    if (number_in(field_text(device.Dev_Wlan_GroupId)) != number_in(field_text(group.Dev_Wlan_GroupId))) {
        std::printf("%s %d\n", "CompareDevInfoWithGroupInfo", 6054);
        return true;
    }
    return wireless_differs(device, group, false);
}

bool differs_from_zero_config(const DevInfo &device, const DevInfo &group) {
    return wireless_differs(device, group, true) || any_differs(reboot, &device, &group);
}

}  // namespace routerdb
