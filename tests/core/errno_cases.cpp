#include "core/errno_cases.h"

#include <string>

#include "routerdb.h"
#include "support/database.h"

namespace errno_cases {

namespace {

constexpr char devices[] = "select Dev_Sn from DevInfo;";
constexpr char applications[] = "select Id from App_Info;";

unsigned count;
unsigned long number;
uint32_t collection;
char text[8192];
char text_en[8192];
DevInfo device;
ApDevList device_list;
AppFeatureList features;
const ApDevUpgradeInfo upgrade{"", "firmware", nullptr};

/// A new access point with an address.
DevInfo new_device() {
    DevInfo record{};
    std::string("07").copy(record.Dev_MAC, sizeof(record.Dev_MAC));
    std::string("10.0.0.2").copy(record.Dev_Ipaddress, sizeof(record.Dev_Ipaddress));
    return record;
}

template <typename List>
Case builder(const char *name, int (*build)(List *, const char *)) {
    const auto call = [build] {
        static List list;
        build(&list, "select Dev_Sn as id from DevInfo;");
    };
    return {{name}, call, Lock::taken};
}

void add_statement_helpers(std::vector<Case> &cases) {
    cases.insert(cases.end(), {
                                  {{"DbSqlExec"}, [] { DbSqlExec(std::string(devices).data()); }, Lock::taken},
                                  {{"DB_EXEC_SQL_CHAR"}, [] { DB_EXEC_SQL_CHAR(devices); }, Lock::taken},
                                  {{"DB_EXEC_SQL_CHAR_INT"}, [] { DB_EXEC_SQL_CHAR_INT(devices, &count); }},
                                  {{"DB_EXEC_SQL_CHAR_LONG"}, [] { DB_EXEC_SQL_CHAR_LONG(devices, &number); }},
                                  {{"DB_EXEC_SQL_CHAR_CHAR"}, [] { DB_EXEC_SQL_CHAR_CHAR(devices, text); }},
                                  {{"GET_DB_SQL_INT_COUNT"}, [] { GET_DB_SQL_INT_COUNT(devices); }, Lock::taken},
                                  {{"GET_DB_SQL_INT"}, [] { GET_DB_SQL_INT(devices); }, Lock::taken},
                                  {{"GET_DB_SQL_INT_COUNT_ROUTE"}, [] { GET_DB_SQL_INT_COUNT_ROUTE(devices); }},
                                  {{"GET_DB_SQL_INT_COUNT_DPI"}, [] { GET_DB_SQL_INT_COUNT_DPI(applications); }},
                                  {{"GET_DB_SQLITE_SQL_INT"}, [] { GET_DB_SQLITE_SQL_INT(applications); }},
                              });
}

void add_rule_tables(std::vector<Case> &cases) {
    cases.insert(cases.end(),
                 {
                     builder("GetDhcpStaticItemListInServer", GetDhcpStaticItemListInServer),
                     builder("GetUrlFilterItemListInServer", GetUrlFilterItemListInServer),
                     builder("GetMacFilterItemListInServer", GetMacFilterItemListInServer),
                     builder("GetIpFilterItemListInServer", GetIpFilterItemListInServer),
                     builder("GetTimeGroupItemListInServer", GetTimeGroupItemListInServer),
                     builder("GetIpGroupItemListInServer", GetIpGroupItemListInServer),
                     builder("GetSmartQosItemListInServer", GetSmartQosItemListInServer),
                     builder("GetUserUrlItemListInServer", GetUserUrlItemListInServer),
                     builder("GetFamliyMemberItemListInServer", GetFamliyMemberItemListInServer),
                     builder("GetPortFwItemListInServer", GetPortFwItemListInServer),
                     builder("GetQosItemListInServer", GetQosItemListInServer),
                     builder("GetBehaviorItemListInServer", GetBehaviorItemListInServer),
                     builder("Get2GAclItemListInServer", Get2GAclItemListInServer),
                     builder("Get5GAclItemListInServer", Get5GAclItemListInServer),
                     builder("GetDomainIpItemListInServer", GetDomainIpItemListInServer),
                     {{"GetClassNameByClassId"}, [] { GetClassNameByClassId(3, text, text_en); }},
                     {{"GetAppNameByClassIdAppfeature"}, [] { GetAppNameByClassIdAppfeature(3, "f1", text, text_en); }},
                     {{"GetBehaviorItemInfoTypeName"},
                      [] {
                          *text = *text_en = '\0';
                          GetBehaviorItemInfoTypeName("3:f1?f2AND99999999999999999999:f9", text, text_en);
                      }},
                 });
}

void add_access_points(std::vector<Case> &cases) {
    cases.insert(cases.end(),
                 {
                     {{"DB_getinfo"}, [] { DB_getinfo(&device, 7, 1); }},
                     {{"GetApDevList"},
                      [] {
                          GetApDevList(&device_list, 0);
                          FreeApDevList(&device_list);
                      },
                      Lock::taken},
                     {{"DB_findinfo2"}, [] { DB_findinfo2(new_device(), &number); }},
                     {{"DB_findinfo"}, [] { DB_findinfo(new_device(), &number); }},
                     {{"DB_addinfo"}, [] { DB_addinfo(new_device()); }, Lock::taken},
                     {{"DB_saveinfo"}, [] { DB_saveinfo(&device); }, Lock::taken},
                     {{"DB_UpdateInfo"}, [] { DB_UpdateInfo(device); }, Lock::taken},
                     {{"SetDevStatus"}, [] { SetDevStatus("06", "99999999999999999999"); }, Lock::taken},
                     {{"SetDevStatusbyIP"}, [] { SetDevStatusbyIP("10.0.0.1", "1"); }, Lock::taken},
                     {{"GetDevStatus"}, [] { GetDevStatus("06", text); }},
                     {{"GetDevUpgradeStatus"}, [] { GetDevUpgradeStatus("06", text); }},
                     {{"GetDevMacBySN"}, [] { GetDevMacBySN(7, text); }},
                     {{"GetDevSNByMac"}, [] { GetDevSNByMac("06", &number); }},
                     {{"GetDevSNByIp"}, [] { GetDevSNByIp("10.0.0.1", &number); }},
                     {{"SetDevUpgradeStatus"}, [] { SetDevUpgradeStatus("06", "1"); }, Lock::taken},
                     {{"GetTableCount"}, [] { GetTableCount("DevInfo"); }},
                     {{"get_devinfo_count"}, [] { get_devinfo_count(); }},
                     {{"GetApDevList_count"}, [] { GetApDevList_count(); }},
                     {{"DeleteApDevUpgradeInfo"}, [] { DeleteApDevUpgradeInfo(&upgrade); }, Lock::taken},
                     {{"DB_GetDevSNCollection"}, [] { DB_GetDevSNCollection(&collection); }, Lock::taken},
                     {{"DB_GetWlanGroupIDCollection"}, [] { DB_GetWlanGroupIDCollection(&collection); }, Lock::taken},
                     {{"DB_getwlangroupinfoByindex"}, [] { DB_getwlangroupinfoByindex(&device, 1); }},
                     {{"get_wlangroupinfo_count"}, [] { get_wlangroupinfo_count(); }},
                     {{"DB_getwlanzerocfggroupinfo"}, [] { DB_getwlanzerocfggroupinfo(&device); }},
                     {{"DB_getwlanzerocfggroupinfoByindex"}, [] { DB_getwlanzerocfggroupinfoByindex(&device, 1); }},
                     {{"Initialwlanzerocfggroupinfo"}, [] { Initialwlanzerocfggroupinfo(&device); }, Lock::taken},
                     {{"GetWlanZeroCfgGroupInfo"}, [] { GetWlanZeroCfgGroupInfo(&device, "1"); }},
                     {{"GetWlanZeroCfgGroupInfo_new"}, [] { GetWlanZeroCfgGroupInfo(&device, "new"); }, Lock::taken},
                     {{"DB_savezerocfgwlangroupinfo"}, [] { DB_savezerocfgwlangroupinfo(device, 1); }, Lock::taken},
                 });
}

void add_json_lists(std::vector<Case> &cases) {
    cases.insert(cases.end(), {
                                  {{"GetAppClassItemList"}, [] { GetAppClassItemList(); }},
                                  {{"GetAppClassItem"}, [] { GetAppClassItem("3"); }},
                                  {{"GetAppInfoItem"}, [] { GetAppInfoItem("1"); }},
                                  {{"GetAppInfoItemListByClassid"}, [] { GetAppInfoItemListByClassid("3"); }},
                                  {{"GetAppItemListByClassId"}, [] { GetAppItemListByClassId(&features, 3); }},
                                  {{"GetApDevList_cgi"}, [] { GetApDevList_cgi(1, 0, 0, 0, "", "", 17); }},
                                  {{"GetWlanZeroCfgGroupList"}, [] { GetWlanZeroCfgGroupList(); }, Lock::taken},
                              });
}

}  // namespace

std::vector<Case> all() {
    std::vector<Case> cases;
    add_statement_helpers(cases);
    add_rule_tables(cases);
    add_access_points(cases);
    add_json_lists(cases);
    return cases;
}

void fill_databases() {
    support::execute(
        "insert into DevInfo(Dev_Sn,Dev_MAC,Dev_Ipaddress,Dev_Status) values(7,'06','10.0.0.1','1');"
        "insert into WlanGroupInfo(WlanGroup_Id) values(1); insert into WlanZeroCfgGroupInfo(WlanGroup_Id) values(1);"
        "insert into App_Info(Class_Id,Features) values(3,'f1');");
    support::Database(support::catalogue_database)
        .execute(
            "insert into App_Class(Id,Name,Name_En) values(3,'c','c');"
            "insert into App_Info(Id,Class_Id,Name,Name_En,Features) values(1,3,'a','a','f1');");
}

void drop_tables() {
    support::execute(
        "drop table DevInfo; drop table DevUpgradeInfo; drop table WlanGroupInfo; drop table WlanZeroCfgGroupInfo;"
        "drop table App_Info;");
    support::Database(support::catalogue_database).execute("drop table App_Info; drop table App_Class;");
}

}  // namespace errno_cases
