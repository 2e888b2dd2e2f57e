// Access points and their groups.
#include "soak/calls/calls.h"

namespace soak {

namespace {

constexpr char mac[] = "00:1a:2b:3c:4d:5e";

DevInfo access_point() {
    DevInfo device{};
    std::strcpy(device.Dev_MAC, mac);
    std::strcpy(device.Dev_Ipaddress, "192.168.1.20");
    std::strcpy(device.Dev_Wlan_Radio_Num, "8");
    for (DevWlanEntry &network : device.wlan) {
        std::strcpy(network.Ssid, "\xd6\xd0");  // GB2312
    }
    return device;
}

void list_access_points(const Connections & /*callers*/) {
    static ApDevList list;
    list.count = 0;
    GetApDevList(&list, 1);
    FreeApDevList(&list);
}

void list_upgrades(const Connections & /*callers*/) {
    static ApDevUpgradeList list;
    GetApDevUpgradeList(&list);
    list.count = 1;
    list.items[0] = static_cast<ApDevUpgradeInfo *>(calloc(1, sizeof(ApDevUpgradeInfo)));
    list.items[0]->block = calloc(1, 8);
    FreeApDevUpgradeList(&list);
}

Calls device_calls() {
    return {
        SOAK_CALL("DB_getinfo",
                  {
                      DevInfo device;
                      DB_getinfo(&device, 1, 1);
                  }),
        {"GetApDevList FreeApDevList", list_access_points},
        slow(leaves_without_databases({0, 0, 16}, SOAK_CALL("DB_findinfo2",
                                                            {
                                                                unsigned long sn = 0;
                                                                DB_findinfo2(access_point(), &sn);
                                                            }))),
        slow(leaves_without_databases({0, 0, 16}, SOAK_CALL("DB_findinfo",
                                                            {
                                                                unsigned long sn = 0;
                                                                DB_findinfo(access_point(), &sn);
                                                            }))),
        slow(leaves_without_databases({0, 0, 17}, SOAK_CALL("DB_addinfo", { DB_addinfo(access_point()); }))),
        SOAK_CALL("DB_saveinfo",
                  {
                      const DevInfo device = access_point();
                      DB_saveinfo(&device);
                  }),
        SOAK_CALL("DB_UpdateInfo", { DB_UpdateInfo(access_point()); }),
    };
}

Calls status_calls() {
    return {
        SOAK_CALL("SetDevStatus", { SetDevStatus(mac, "1"); }),
        SOAK_CALL("SetDevStatusbyIP", { SetDevStatusbyIP("10.0.0.1", "0"); }),
        SOAK_CALL("GetDevStatus",
                  {
                      char status[5];
                      GetDevStatus(mac, status);
                  }),
        SOAK_CALL("GetDevUpgradeStatus",
                  {
                      char status[25];
                      GetDevUpgradeStatus(mac, status);
                  }),
        SOAK_CALL("GetDevMacBySN",
                  {
                      char address[20];
                      GetDevMacBySN(1, address);
                  }),
        SOAK_CALL("GetDevSNByMac",
                  {
                      unsigned long sn = 0;
                      GetDevSNByMac(mac, &sn);
                  }),
        SOAK_CALL("GetDevSNByIp",
                  {
                      unsigned long sn = 0;
                      GetDevSNByIp("10.0.0.1", &sn);
                  }),
        slow(SOAK_CALL("SetDevUpgradeStatus", { SetDevUpgradeStatus(mac, "1"); })),
        leaves_without_databases(a_connection, SOAK_CALL("GetTableCount", { GetTableCount("DevInfo"); })),
        leaves_without_databases(a_connection, SOAK_CALL("get_devinfo_count", { get_devinfo_count(); })),
        leaves_without_databases(a_connection, SOAK_CALL("GetApDevList_count", { GetApDevList_count(); })),
        SOAK_CALL("DeleteApDevUpgradeInfo",
                  {
                      ApDevUpgradeInfo info{};
                      std::strcpy(info.Dev_SwName, "firmware");
                      DeleteApDevUpgradeInfo(&info);
                  }),
        {"GetApDevUpgradeList FreeApDevUpgradeList", list_upgrades},
        SOAK_CALL("DB_GetDevSNCollection",
                  {
                      std::uint32_t collection[8] = {};
                      DB_GetDevSNCollection(collection);
                  }),
        SOAK_CALL("DB_GetWlanGroupIDCollection",
                  {
                      std::uint32_t collection[8] = {};
                      DB_GetWlanGroupIDCollection(collection);
                  }),
    };
}

Calls group_calls() {
    return {
        SOAK_CALL("DB_getwlangroupinfoByindex",
                  {
                      DevInfo group;
                      DB_getwlangroupinfoByindex(&group, 1);
                  }),
        leaves_without_databases(a_connection, SOAK_CALL("get_wlangroupinfo_count", { get_wlangroupinfo_count(); })),
        SOAK_CALL("CompareDevInfoWithGroupInfo", { CompareDevInfoWithGroupInfo(access_point(), access_point()); }),
        SOAK_CALL("SetDevInfoFromWlanGroupInfo",
                  {
                      const DevInfo group = access_point();
                      DevInfo device{};
                      SetDevInfoFromWlanGroupInfo(&device, &group);
                  }),
        leaves_without_databases(a_connection, SOAK_CALL("DB_getwlanzerocfggroupinfo",
                                                         {
                                                             DevInfo group;
                                                             DB_getwlanzerocfggroupinfo(&group);
                                                         })),
        SOAK_CALL("DB_getwlanzerocfggroupinfoByindex",
                  {
                      DevInfo group;
                      DB_getwlanzerocfggroupinfoByindex(&group, 1);
                  }),
        SOAK_CALL("Initialwlanzerocfggroupinfo",
                  {
                      DevInfo group{};
                      Initialwlanzerocfggroupinfo(&group);
                  }),
        SOAK_CALL("GetWlanZeroCfgGroupInfo",
                  {
                      DevInfo group;
                      GetWlanZeroCfgGroupInfo(&group, "0");
                  }),
        SOAK_CALL("DB_savezerocfgwlangroupinfo", { DB_savezerocfgwlangroupinfo(access_point(), 0); }),
        SOAK_CALL("CompareDevInfoWithZeroGroupInfo",
                  { CompareDevInfoWithZeroGroupInfo(access_point(), access_point()); }),
        SOAK_CALL("SetDevInfoFromWlanZeroCfgGroupInfo",
                  {
                      const DevInfo group = access_point();
                      DevInfo device{};
                      SetDevInfoFromWlanZeroCfgGroupInfo(&device, &group);
                  }),
    };
}

}  // namespace

Calls access_point_calls() {
    return joined({device_calls, status_calls, group_calls});
}

}  // namespace soak
