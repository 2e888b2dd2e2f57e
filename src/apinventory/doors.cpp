// The exported functions of the inventory of access points and their groups.
#include "apinventory/apply.h"
#include "apinventory/compare.h"
#include "apinventory/devices.h"
#include "apinventory/empty_collection.h"
#include "apinventory/groups.h"
#include "apinventory/list_json.h"
#include "apinventory/registration.h"
#include "apinventory/station_list.h"
#include "apinventory/status.h"
#include "apinventory/totals.h"
#include "apinventory/upgrade.h"
#include "apinventory/zero_config.h"
#include "apinventory/zero_config_json.h"
#include "routerdb.h"
#include "text/text.h"

using namespace routerdb;

namespace {

Ssids ssids(int convert) {
    return convert == 1 ? Ssids::in_gb2312 : Ssids::as_stored;
}

}  // namespace

int DB_getinfo(DevInfo *out, unsigned long sn, int convert) {
    return read_device_by_sn(*out, sn, ssids(convert));
}

int GetApDevList(ApDevList *list, int convert) {
    return read_all_devices(*list, ssids(convert)) ? 1 : 0;
}

void FreeApDevList(ApDevList *list) {
    free_devices(*list);
}

int DB_findinfo2(DevInfo dev, unsigned long *sn) {
    return find_known(dev, *sn);
}

int DB_findinfo(DevInfo dev, unsigned long *sn) {
    SharedConnection connection;
    return find_or_make_way(dev, *sn, Road(connection));
}

int DB_addinfo(DevInfo dev) {
    return register_device(dev);
}

void DB_saveinfo(const DevInfo *dev) {
    save_device(*dev);
}

int DB_UpdateInfo(DevInfo dev) {
    return update_device(dev);
}

void SetDevStatus(const char *mac, const char *status) {
    set_status(LookupKey::mac, or_empty(mac), or_empty(status));
}

void SetDevStatusbyIP(const char *ip, const char *status) {
    set_status(LookupKey::ip, or_empty(ip), or_empty(status));
}

void GetDevStatus(const char *mac, char *out) {
    read_status("Dev_Status", or_empty(mac), {out, sizeof(DevInfo::Dev_Status)});
}

void GetDevUpgradeStatus(const char *mac, char *out) {
    read_status("Dev_Upgrade_Status", or_empty(mac), {out, sizeof(DevInfo::Dev_Upgrade_Status)});
}

void GetDevMacBySN(unsigned long sn, char *out) {
    read_mac(sn, {out, sizeof(DevInfo::Dev_MAC)});
}

void GetDevSNByMac(const char *mac, unsigned long *sn) {
    read_sn(LookupKey::mac, or_empty(mac), Quotes::as_given, *sn);
}

void GetDevSNByIp(const char *ip, unsigned long *sn) {
    read_sn(LookupKey::ip, or_empty(ip), Quotes::as_given, *sn);
}

void SetDevUpgradeStatus(const char *mac, const char *status) {
    set_upgrade_status(or_empty(mac), or_empty(status));
}

int GetTableCount(const char *table) {
    return rows_in_named_table(or_empty(table));
}

int get_devinfo_count() {
    return rows_in_table("DevInfo");
}

int GetApDevList_count() {
    return count_online();
}

int DeleteApDevUpgradeInfo(const ApDevUpgradeInfo *info) {
    delete_upgrade(info);
    return 0;
}

// Deliberate: there is nothing to get.
void GetApDevUpgradeList(ApDevUpgradeList * /*list*/) {}

void FreeApDevUpgradeList(ApDevUpgradeList *list) {
    free_upgrades(*list);
}

int DB_GetDevSNCollection(uint32_t *collection) {
    return empty_collection(*collection, "select Dev_Sn from DevInfo order by Dev_IPSUM ;");
}

int DB_GetWlanGroupIDCollection(uint32_t *collection) {
    return empty_collection(*collection, "select WlanGroup_Id from WlanGroupInfo;");
}

int DB_getwlangroupinfoByindex(DevInfo *group, int groupId) {
    return read_wlan_group(*group, groupId);
}

int get_wlangroupinfo_count() {
    return rows_in_table("WlanGroupInfo");
}

int CompareDevInfoWithGroupInfo(DevInfo dev, DevInfo group) {
    return differs_from_group(dev, group) ? 1 : 0;
}

char *SetDevInfoFromWlanGroupInfo(DevInfo *dev, const DevInfo *group) {
    apply_group(*dev, *group);
    return dev->Dev_Wlan_CoverageThreshold_sec;
}

int DB_getwlanzerocfggroupinfo(DevInfo *group) {
    return read_default_zero_config(*group);
}

int DB_getwlanzerocfggroupinfoByindex(DevInfo *group, int groupId) {
    return read_zero_config(*group, groupId);
}

int Initialwlanzerocfggroupinfo(DevInfo *group) {
    fill_with_defaults(*group);
    return 0;
}

int GetWlanZeroCfgGroupInfo(DevInfo *group, const char *groupIdText) {
    return read_or_start_zero_config(*group, or_empty(groupIdText));
}

int DB_savezerocfgwlangroupinfo(DevInfo group, int groupId) {
    return save_zero_config(group, groupId);
}

int CompareDevInfoWithZeroGroupInfo(DevInfo dev, DevInfo group) {
    return differs_from_zero_config(dev, group) ? 1 : 0;
}

char *SetDevInfoFromWlanZeroCfgGroupInfo(DevInfo *dev, const DevInfo *group) {
    apply_zero_config(*dev, *group);
    return dev->Dev_Wlan_Txpower_sec;
}

int GetApDevList_cgi(int page, int mode, int groupId, int flag, const char *ip, const char *mac, int pageSize) {
    print_page(make_page_request(page, mode, groupId, flag, ip, mac, pageSize));
    return 0;
}

int GetWlanZeroCfgGroupList() {
    return print_zero_config_groups();
}

int GetApDevStaList(const char *devIp) {
    print_stations(or_empty(devIp));
    return 0;
}
