#include "apinventory/apply.h"

#include "apinventory/device_fields.h"
#include "apinventory/member.h"
#include "apinventory/numbers.h"

namespace routerdb {

namespace {

constexpr Member group_id[] = {DEVICE_MEMBER(Dev_Wlan_GroupId)};

// The BSSID is the access point's own and stays.
constexpr Member wlan_members[] = {
    WLAN_MEMBER(Enable),         WLAN_MEMBER(Hide_Ssid), WLAN_MEMBER(Ssid),      WLAN_MEMBER(VlanId),
    WLAN_MEMBER(Security),       WLAN_MEMBER(Authmode),  WLAN_MEMBER(Wep_Type),  WLAN_MEMBER(Wep_Value),
    WLAN_MEMBER(Securitycipher), WLAN_MEMBER(Psk_Type),  WLAN_MEMBER(Psk_Value),
};

// Channel, mode, bandwidth, power and station limit stay.
constexpr Member radio_members[] = {
    RADIO_MEMBER(Ampdu),           RADIO_MEMBER(Isolate),  RADIO_MEMBER(Rate),
    RADIO_MEMBER(Beacon_Inertval), RADIO_MEMBER(Rts),      RADIO_MEMBER(Cts),
    RADIO_MEMBER(ShortGI),         RADIO_MEMBER(RxOption), RADIO_MEMBER(CoverageThreshold),
};

// Deliberate: a WLAN group has none, so that applying one empties them.
constexpr Member radius_members[] = {
    DEVICE_MEMBER(radius_server_ip),
    DEVICE_MEMBER(radius_server_port),
    DEVICE_MEMBER(radius_shared_key),
};

constexpr Member reboot_and_power[] = {
    DEVICE_MEMBER(Dev_RebootTime_Enable),
    DEVICE_MEMBER(Dev_RebootTime),
    DEVICE_MEMBER(Dev_Wlan_Txpower),
    DEVICE_MEMBER(Dev_Wlan_Txpower_sec),
};

void copy_wireless(DevInfo &device, const DevInfo &group) {
    for (unsigned number = 0; number < ROUTERDB_WLANS; ++number) {
        for (const Member &member : wlan_members) {
            std::memset(reinterpret_cast<char *>(&device.wlan[number]) + member.offset, 0, member.width);
        }
        copy_members(wlan_members, &device.wlan[number], &group.wlan[number]);
    }
    for (const std::size_t distance : {std::size_t{0}, second_radio}) {
        copy_members(radio_members, reinterpret_cast<char *>(&device) + distance,
                     reinterpret_cast<const char *>(&group) + distance);
    }
    copy_members(radius_members, &device, &group);
}

/// Takes the group's channels where they suit their radios.
void copy_channels(DevInfo &device, const DevInfo &group) {
    constexpr Member first = DEVICE_MEMBER(Dev_Wlan_Channel);
    constexpr Member second = DEVICE_MEMBER(Dev_Wlan_Channel_sec);
    constexpr int last_channel_of_first_radio = 13;
    const std::string_view low = text_of(&group, first);
    const std::string_view high = text_of(&group, second);
    give_text(first, &device, !low.empty() && number_in(low) <= last_channel_of_first_radio ? low : "0");
    give_text(second, &device, number_in(high) > 0 ? high : "15");
}

}  // namespace

void apply_group(DevInfo &device, const DevInfo &group) {
    copy_members(group_id, &device, &group);
    copy_wireless(device, group);
}

void apply_zero_config(DevInfo &device, const DevInfo &group) {
    copy_wireless(device, group);
    copy_channels(device, group);
    copy_members(reboot_and_power, &device, &group);
}

}  // namespace routerdb
