// What a new zero-configuration group starts with. Members that do not stand here are empty.
#pragma once

#include "apinventory/member.h"

namespace routerdb {

struct Default {
    Member member;
    char text[6];
};

// clang-format off
inline constexpr Default default_wlan[] = {
    {WLAN_MEMBER(Hide_Ssid), "0"},
    {WLAN_MEMBER(VlanId), "0"},
    {WLAN_MEMBER(Security), "0"},
    {WLAN_MEMBER(Securitycipher), "0"},
    {WLAN_MEMBER(Authmode), "0"},
    {WLAN_MEMBER(Wep_Type), "0"},
    {WLAN_MEMBER(Psk_Type), "0"},
};

/// Of either radio.
inline constexpr Default default_radio[] = {
    {RADIO_MEMBER(Channel), "0"},
    {RADIO_MEMBER(Mode), "9"},
    {RADIO_MEMBER(Bw), "0"},
    {RADIO_MEMBER(Isolate), "0"},
    {RADIO_MEMBER(Ampdu), "1"},
    {RADIO_MEMBER(ShortGI), "1"},
    {RADIO_MEMBER(Beacon_Inertval), "100"},
    {RADIO_MEMBER(Rts), "2346"},
    {RADIO_MEMBER(Cts), "2346"},
    {RADIO_MEMBER(Txpower), "100"},
    {RADIO_MEMBER(RxOption), "5"},
    {RADIO_MEMBER(MaxStaNum), "32"},
    {RADIO_MEMBER(CoverageThreshold), "-90"},
};

inline constexpr Default default_device[] = {
    {DEVICE_MEMBER(Dev_Wlan_GroupId), "0"},
    {DEVICE_MEMBER(Dev_RebootTime_Enable), "0"},
    {DEVICE_MEMBER(Dev_RebootTime), "3"},
};
// clang-format on

}  // namespace routerdb
