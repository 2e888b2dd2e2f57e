// The three JSON lists, printed member by member with printf as one would by hand. What differs between the variants is
// how they come by the values: `text` gives that of a column.
#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>

namespace bench {

inline void print_member(bool first, const char *name, const char *value, int longest) {
    std::printf("%s\"%s\":\"%.*s\"", first ? "" : ",", name, longest, value);
}

/// Access points ---------------------------------------------------------------------------------------------------

inline constexpr int page_size = 17;

struct DeviceKey {
    const char *name;
    int column;
    int longest;
    bool in_closing;
};

inline constexpr int station_count = -1;  // in place of a column
inline constexpr int no_group_name = -2;

// clang-format off
inline constexpr std::array<DeviceKey, 25> device_keys{{
    {"m_sn", 0, 20, true}, {"m_group_name", 1, 199, true}, {"m_dev_name", 2, 199, true}, {"m_dev_ip", 3, 19, true},
    {"m_dev_mac", 8, 19, true}, {"m_onlinetime", 9, 49, true}, {"m_sw_ver", 11, 199, true},
    {"m_sw_name", 10, 199, true}, {"m_channel", 112, 4, true}, {"m_current_channel", 113, 4, false},
    {"m_stanum", station_count, 9, true}, {"m_dev_status", 153, 4, true}, {"m_dev_upgrade_status", 159, 24, true},
    {"m_wlan_group_name", no_group_name, 9, true}, {"m_wlan_radio_num", 15, 4, true}, {"m_channel_sec", 132, 4, true},
    {"m_current_channel_sec", 133, 4, false}, {"m_TimeRebootEnable", 157, 4, true}, {"m_RebootTime", 158, 49, true},
    {"m_CurrentTime", 156, 49, true}, {"m_dev_modelname", 13, 99, true}, {"m_wlan_txpower", 126, 4, true},
    {"m_wlan_txpower_sec", 146, 4, true}, {"m_wlan_ssid", 18, 99, false}, {"m_wlan_ssid_sec", 66, 99, false},
}};
// clang-format on

template <typename Text>
void print_device(Text text) {
    std::printf("{");
    for (const DeviceKey &key : device_keys) {
        if (key.column == station_count) {
            // Of one radio, or of both for an access point with eight networks.
            const int first = std::atoi(text(128));
            std::printf(",\"%s\":\"%d\"", key.name, std::atoi(text(15)) == 8 ? first + std::atoi(text(148)) : first);
        } else {
            const char *value = key.column == no_group_name ? "N/A" : text(key.column);
            print_member(&key == device_keys.data(), key.name, value, key.longest);
        }
    }
    std::printf("},");
}

struct DeviceTotals {
    int devices;
    int online;
    int stations;
    int matching;  // of all pages
};

inline void print_devices_end(int count, const DeviceTotals &totals) {
    std::printf("{");
    for (const DeviceKey &key : device_keys) {
        if (key.in_closing) {
            print_member(&key == device_keys.data(), key.name, "", 0);
        }
    }
    const int pages = totals.matching / page_size;
    std::printf(
        "}],\"count\":\"%d\",\"pagenum\":\"%d\",\"pagecount\":\"%d\",\"sumcount\":\"%d\",\"onlinecount\":\"%d\","
        "\"stasumnum\":\"%d\"}}",
        count, 1, pages > 0 && totals.matching % page_size != 0 ? pages + 1 : pages, totals.devices, totals.online,
        totals.stations);
}

/// Classes of applications -----------------------------------------------------------------------------------------

/// Joined names may have 4095 bytes.
inline constexpr std::size_t joined_size = 4096;

struct ClassTexts {
    const char *id;
    const char *name;
    const char *name_en;
    const char *mark;
    const char *names;
    const char *names_en;
    const char *features;
};

inline void print_class(const ClassTexts &texts) {
    std::printf(
        "{\"id\":\"%s\",\"name\":\"%.199s\",\"name_en\":\"%.199s\",\"mark\":\"%.199s\",\"priority\":\"0\",\"bw\":\"0\","
        "\"appnames\":\"%s\",\"appnames_en\":\"%s\",\"appfeature\":\"%s\"},",
        texts.id, texts.name, texts.name_en, texts.mark, texts.names, texts.names_en, texts.features);
}

inline void print_classes_end(int count) {
    std::printf(
        "{\"id\":\"\",\"name\":\"\",\"name_en\":\"\",\"mark\":\"\",\"priority\":\"\",\"bw\":\"\",\"appnames\":\"\","
        "\"appnames_en\":\"\",\"appfeature\":\"\"}],\"count\":\"%d\"}}",
        count);
}

/// Zero-configuration groups ---------------------------------------------------------------------------------------

inline constexpr char groups_sql[] =
    "select WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan1_Ssid,WlanGroup_Wlan1_Security,WlanGroup_Wlan1_AuthMode,"
    "WlanGroup_Wlan1_SecurityCipher,WlanGroup_Wlan1_Wep_Value,WlanGroup_Wlan1_Psk_Value,WlanGroup_Wlan5_Ssid,"
    "WlanGroup_Wlan5_Security,WlanGroup_Wlan5_AuthMode,WlanGroup_Wlan5_SecurityCipher,WlanGroup_Wlan5_Wep_Value,"
    "WlanGroup_Wlan5_Psk_Value,WlanGroup_Wlan_Channel,WlanGroup_Wlan_Channel_sec,WlanGroup_Dev_RebootTime_Enable,"
    "WlanGroup_Dev_RebootTime,WlanGroup_Wlan_Txpower,WlanGroup_Wlan_Txpower_sec from WlanZeroCfgGroupInfo;";

struct GroupKey {
    const char *name;
    int column;  // of the query
};

// clang-format off
inline constexpr std::array<GroupKey, 20> group_keys{{
    {"WlanGroup_Id", 0}, {"WlanGroup_Name", 1}, {"WlanGroup_Wlan1_Ssid", 2}, {"WlanGroup_Wlan1_Security", 3},
    {"WlanGroup_Wlan1_AuthMode", 4}, {"WlanGroup_Wlan1_SecurityCipher", 5}, {"WlanGroup_Wlan1_Wep_Value", 6},
    {"WlanGroup_Wlan1_Psk_Value", 7}, {"WlanGroup_Wlan_Channel", 14}, {"WlanGroup_Wlan5_Ssid", 8},
    {"WlanGroup_Wlan5_Security", 9}, {"WlanGroup_Wlan5_AuthMode", 10}, {"WlanGroup_Wlan5_SecurityCipher", 11},
    {"WlanGroup_Wlan5_Wep_Value", 12}, {"WlanGroup_Wlan5_Psk_Value", 13}, {"WlanGroup_Wlan_Channel_sec", 15},
    {"Wlan_txpower", 18}, {"Wlan_txpower_sec", 19}, {"TimeRebootEnable", 16}, {"RebootTime", 17},
}};
// clang-format on

template <typename Text>
void print_group(Text text) {
    std::printf("{");
    for (const GroupKey &key : group_keys) {
        print_member(&key == group_keys.data(), key.name, text(key.column), 99);
    }
    std::printf("},");
}

inline void print_groups_end(int count) {
    std::printf("{");
    for (const GroupKey &key : group_keys) {
        print_member(&key == group_keys.data(), key.name, "", 0);
    }
    std::printf("}],\"count\":\"%d\"}}", count);
}

}  // namespace bench
