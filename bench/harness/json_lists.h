// The three JSON lists, printed member by member as one would by hand: keys, and what stands around the elements.
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <string_view>

namespace bench {

struct Key {
    const char *name;
    const char *column = name;  // or an expression
    bool in_closing = true;
};

/// A statement for the values of elements in the order of the keys.
template <std::size_t count>
std::string select(const std::array<Key, count> &keys, const char *from) {
    std::string sql = "select ";
    for (const Key &key : keys) {
        sql.append(&key == keys.data() ? "" : ", ").append(key.column);
    }
    return sql + from;
}

/// Prints an element. `text` gives the value of a key by its number.
template <std::size_t count, typename Text>
void print_element(const std::array<Key, count> &keys, Text text) {
    for (std::size_t key = 0; key < count; ++key) {
        const auto &value = text(static_cast<int>(key));
        const std::string_view view = value;
        std::printf("%s\"%s\":\"%.*s\"", key == 0 ? "{" : ",", keys[key].name, static_cast<int>(view.size()),
                    view.data());
    }
    std::printf("},");
}

/// Prints the element behind the last one, whose values are empty, and how many there were.
template <std::size_t count>
void print_closing(const std::array<Key, count> &keys, int elements) {
    for (const Key &key : keys) {
        if (key.in_closing) {
            std::printf("%s\"%s\":\"\"", &key == keys.data() ? "{" : ",", key.name);
        }
    }
    std::printf("}],\"count\":\"%d\"", elements);
}

// clang-format off

inline constexpr char devices_head[] = "{\"ApDevList\":{\"data\":[";
inline constexpr std::array<Key, 25> device_keys{{
    {"m_sn", "Dev_Sn"}, {"m_group_name", "Dev_Group"}, {"m_dev_name", "Dev_Name"}, {"m_dev_ip", "Dev_Ipaddress"},
    {"m_dev_mac", "Dev_MAC"}, {"m_onlinetime", "Dev_OnlineTime"}, {"m_sw_ver", "Dev_SwVer"},
    {"m_sw_name", "Dev_SwName"}, {"m_channel", "Dev_Wlan_Channel"},
    {"m_current_channel", "Dev_Wlan_Current_Channel", false},
    {"m_stanum", "Dev_Wlan_Sta_Num + iif(Dev_Wlan_Radio_Num = '8', Dev_Wlan_Sta_Num_sec, 0)"},
    {"m_dev_status", "Dev_Status"}, {"m_dev_upgrade_status", "Dev_Upgrade_Status"}, {"m_wlan_group_name", "'N/A'"},
    {"m_wlan_radio_num", "Dev_Wlan_Radio_Num"}, {"m_channel_sec", "Dev_Wlan_Channel_sec"},
    {"m_current_channel_sec", "Dev_Wlan_Current_Channel_sec", false}, {"m_TimeRebootEnable", "Dev_RebootTime_Enable"},
    {"m_RebootTime", "Dev_RebootTime"}, {"m_CurrentTime", "Dev_CurrentDateTime"},
    {"m_dev_modelname", "Dev_Model_Name"}, {"m_wlan_txpower", "Dev_Wlan_Txpower"},
    {"m_wlan_txpower_sec", "Dev_Wlan_Txpower_sec"}, {"m_wlan_ssid", "Dev_Wlan1_Ssid", false},
    {"m_wlan_ssid_sec", "Dev_Wlan5_Ssid", false},
}};

inline constexpr char classes_head[] = "{\"ItemList\":{\"data\":[";
inline constexpr std::array<Key, 9> class_keys{{
    {"id"}, {"name"}, {"name_en"}, {"mark"}, {"priority"}, {"bw"}, {"appnames"}, {"appnames_en"}, {"appfeature"},
}};

inline constexpr char groups_head[] = "{\"WlanGroupList\":{\"data\":[";
inline constexpr std::array<Key, 20> group_keys{{
    {"WlanGroup_Id"}, {"WlanGroup_Name"}, {"WlanGroup_Wlan1_Ssid"}, {"WlanGroup_Wlan1_Security"},
    {"WlanGroup_Wlan1_AuthMode"}, {"WlanGroup_Wlan1_SecurityCipher"}, {"WlanGroup_Wlan1_Wep_Value"},
    {"WlanGroup_Wlan1_Psk_Value"}, {"WlanGroup_Wlan_Channel"}, {"WlanGroup_Wlan5_Ssid"}, {"WlanGroup_Wlan5_Security"},
    {"WlanGroup_Wlan5_AuthMode"}, {"WlanGroup_Wlan5_SecurityCipher"}, {"WlanGroup_Wlan5_Wep_Value"},
    {"WlanGroup_Wlan5_Psk_Value"}, {"WlanGroup_Wlan_Channel_sec"}, {"Wlan_txpower", "WlanGroup_Wlan_Txpower"},
    {"Wlan_txpower_sec", "WlanGroup_Wlan_Txpower_sec"}, {"TimeRebootEnable", "WlanGroup_Dev_RebootTime_Enable"},
    {"RebootTime", "WlanGroup_Dev_RebootTime"},
}};

// clang-format on

inline constexpr int page_size = 17;

/// Of all access points, and of those that the page is taken from.
struct DeviceTotals {
    int devices;
    int online;
    int stations;
    int matching;
};

inline void print_devices_end(int count, const DeviceTotals &totals) {
    print_closing(device_keys, count);
    const int pages = totals.matching / page_size;
    std::printf(
        ",\"pagenum\":\"%d\",\"pagecount\":\"%d\",\"sumcount\":\"%d\",\"onlinecount\":\"%d\","
        "\"stasumnum\":\"%d\"}}",
        1, pages > 0 && totals.matching % page_size != 0 ? pages + 1 : pages, totals.devices, totals.online,
        totals.stations);
}

}  // namespace bench
