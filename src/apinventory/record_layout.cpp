// The records of access points are shared with programs that were built apart. A layout that changes stops the build,
// on 32 and on 64 bits.
#include "routerdb.h"

#define MEMBER(record, member, offset, width)                                                \
    static_assert(offsetof(record, member) == (offset) && sizeof(record::member) == (width), \
                  #record "::" #member " lies elsewhere")

// A member of both radios: the second radio's lies 190 bytes behind the first one's.
#define RADIO(member, offset)             \
    MEMBER(DevInfo, member, (offset), 5); \
    MEMBER(DevInfo, member##_sec, (offset) + 190, 5)

// A member that holds a pointer is as wide as the platform's pointers.
constexpr bool target = sizeof(void *) == 4;

static_assert(sizeof(DevWlanEntry) == 635);
MEMBER(DevWlanEntry, Enable, 0, 5);
MEMBER(DevWlanEntry, Hide_Ssid, 5, 5);
MEMBER(DevWlanEntry, Ssid, 10, 100);
MEMBER(DevWlanEntry, VlanId, 110, 5);
MEMBER(DevWlanEntry, Bssid, 115, 20);
MEMBER(DevWlanEntry, Security, 135, 20);
MEMBER(DevWlanEntry, Securitycipher, 155, 20);
MEMBER(DevWlanEntry, Authmode, 175, 20);
MEMBER(DevWlanEntry, Wep_Type, 195, 20);
MEMBER(DevWlanEntry, Wep_Value, 215, 200);
MEMBER(DevWlanEntry, Psk_Type, 415, 20);
MEMBER(DevWlanEntry, Psk_Value, 435, 200);

static_assert(sizeof(DevInfo) == 6936);
MEMBER(DevInfo, Dev_Sn, 0, 4);
MEMBER(DevInfo, Dev_Group, 4, 200);
MEMBER(DevInfo, Dev_Name, 204, 200);
MEMBER(DevInfo, Dev_Manufacture, 404, 100);
MEMBER(DevInfo, Dev_Model_Name, 504, 100);
MEMBER(DevInfo, Dev_IP_Assign, 604, 5);
MEMBER(DevInfo, Dev_Ipaddress, 609, 20);
MEMBER(DevInfo, Dev_Status, 629, 5);
MEMBER(DevInfo, Dev_Upgrade_Status, 634, 25);
MEMBER(DevInfo, Dev_Subnet, 659, 20);
MEMBER(DevInfo, Dev_Gateway, 679, 20);
MEMBER(DevInfo, Dev_Dns1, 699, 20);
MEMBER(DevInfo, Dev_Dns2, 719, 20);
MEMBER(DevInfo, Dev_Sys_TrapIP, 739, 20);
MEMBER(DevInfo, Dev_MAC, 759, 20);
MEMBER(DevInfo, Dev_OnlineTime, 779, 50);
MEMBER(DevInfo, Dev_SwName, 829, 200);
MEMBER(DevInfo, Dev_SwVer, 1029, 200);
MEMBER(DevInfo, Dev_Wlan_GroupId, 1229, 5);
MEMBER(DevInfo, wlan_group_name, 1234, 100);
MEMBER(DevInfo, Dev_Wlan_Radio_Num, 1334, 5);
MEMBER(DevInfo, wlan, 1339, 5080);
RADIO(Dev_Wlan_Mode, 6419);
RADIO(Dev_Wlan_Bw, 6424);
RADIO(Dev_Wlan_Ampdu, 6429);
RADIO(Dev_Wlan_Isolate, 6434);
RADIO(Dev_Wlan_Rate, 6439);
RADIO(Dev_Wlan_Beacon_Inertval, 6444);
RADIO(Dev_Wlan_Rts, 6449);
RADIO(Dev_Wlan_Cts, 6454);
RADIO(Dev_Wlan_ShortGI, 6459);
RADIO(Dev_Wlan_Txpower, 6464);
RADIO(Dev_Wlan_MaxTxpower, 6469);
RADIO(Dev_Wlan_Channel, 6474);
RADIO(Dev_Wlan_RxOption, 6479);
RADIO(Dev_Wlan_CoverageThreshold, 6484);
RADIO(Dev_Wlan_Current_Channel, 6489);
RADIO(Dev_Wlan_Sta_Num, 6494);
RADIO(Dev_Wlan_MaxStaNum, 6499);
MEMBER(DevInfo, Dev_RebootTime_Enable, 6504, 5);
MEMBER(DevInfo, Dev_RebootTime, 6509, 50);
MEMBER(DevInfo, Dev_CurrentDateTime, 6559, 50);
MEMBER(DevInfo, radius_server_ip, 6694, 20);
MEMBER(DevInfo, radius_server_port, 6714, 20);
MEMBER(DevInfo, radius_shared_key, 6734, 200);

static_assert(sizeof(ApDevList) == (target ? 4004 : 8008));
MEMBER(ApDevList, count, 0, 4);
MEMBER(ApDevList, devices, target ? 4 : 8, 1000 * sizeof(void *));

static_assert(sizeof(ApDevUpgradeInfo) == (target ? 304 : 312));
MEMBER(ApDevUpgradeInfo, description, 0, 100);
MEMBER(ApDevUpgradeInfo, Dev_SwName, 100, 200);
MEMBER(ApDevUpgradeInfo, block, target ? 300 : 304, sizeof(void *));

static_assert(sizeof(ApDevUpgradeList) == sizeof(ApDevList));
MEMBER(ApDevUpgradeList, count, 0, 4);
MEMBER(ApDevUpgradeList, items, target ? 4 : 8, 1000 * sizeof(void *));

#undef MEMBER
#undef RADIO
