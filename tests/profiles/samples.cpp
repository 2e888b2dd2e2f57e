#include "profiles/samples.h"

#include <cstring>

#include "routerdb.h"
#include "support/database.h"

namespace samples {

namespace {

template <typename Record>
std::string bytes_of(const Record &record) {
    return {reinterpret_cast<const char *>(&record), sizeof(record)};
}

/// The result of a call that has filled a record.
template <typename Record>
std::string seen(int result, const Record &record) {
    return std::to_string(result) + bytes_of(record);
}

/// An access point that nobody knows.
DevInfo stranger() {
    DevInfo device{};
    std::strcpy(device.Dev_MAC, "00:1a:2b:3c:4d:5e");
    std::strcpy(device.Dev_Ipaddress, "192.168.1.20");
    return device;
}

std::string list_access_points() {
    ApDevList list;
    std::string seen = std::to_string(GetApDevList(&list, 1));
    for (unsigned i = 0; i < list.count; ++i) {
        seen += bytes_of(*list.devices[i]);
    }
    FreeApDevList(&list);
    return seen;
}

std::string find_stranger() {
    unsigned long sn = 0;
    const int result = DB_findinfo(stranger(), &sn);
    return std::to_string(result) + " " + std::to_string(sn);
}

std::string read_default_group() {
    DevInfo group{};
    return seen(DB_getwlanzerocfggroupinfo(&group), group);
}

std::string start_group() {
    DevInfo group{};
    return seen(GetWlanZeroCfgGroupInfo(&group, "0"), group);
}

template <typename List>
std::string build(int (*builder)(List *list, const char *sql), const char *sql) {
    static List list;
    return seen(builder(&list, sql), list);
}

}  // namespace

void fill_databases() {
    support::execute(
        "insert into DevInfo(Dev_Sn,Dev_IPSUM,Dev_Ipaddress,Dev_Status,Dev_Wlan_Sta_Num,Dev_Wlan_Sta_Num_sec) values"
        "(1,1,'10.0.0.1','1','3','4'),(2,2,'10.0.0.2','0','5','6'),(335653056,3,'192.168.1.20','0','0','0');"
        "insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name) values(1,'a'),(2,'b');"
        "insert into user_ipgroup values(4,'guests','192.168.1.100','192.168.1.199','');"
        "insert into user_timegroup values(3,'evenings',0,0,0,0,0,0,1,'18:00','23:59','');"
        "insert into filter_url(timecontrol,timegroup_id) values(2,3),(2,3);"
        "insert into filter_mac(devmac) values('00:11:22:33:44:55'),('AA:BB:CC:DD:EE:FF');"
        "insert into behavior_rule(ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,behavior_info) values"
        "(2,4,2,3,'00:11:22:33:44:55','3:f1?f2AND7:f9'),(2,4,2,3,'00:11:22:33:44:55','3:f1?f2');");
    support::Database(support::catalogue_database)
        .execute(
            "insert into App_Class values(3,'Class A','Klasse A',0,'m'),(7,'Class B','Klasse B',0,'m');"
            "insert into App_Info values(1,3,'App 1','Anw 1','f1','m'),(2,3,'App 2','Anw 2','f2','m'),"
            "(3,7,'App 9','Anw 9','f9','m');");
    support::write_file("/var/dhcp.leases",
                        "17 00:11:22:33:44:55 192.168.1.2 tablet\n17 AA:BB:CC:DD:EE:FF 192.168.1.3 phone\n");
}

const std::vector<Call> &calls() {
    static const std::vector<Call> all{
        {"GetApDevList", list_access_points, 0, 2, 1},
        {"GetApDevList_cgi", [] { return std::to_string(GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17)); }, 0, 6,
         1},
        {"GetAppClassItemList", [] { return std::to_string(GetAppClassItemList()); }, 0, 2, 1},
        {"GetAppClassItem", [] { return std::to_string(GetAppClassItem("3")); }, 0, 2, 1},
        {"GetAppInfoItem", [] { return std::to_string(GetAppInfoItem("1")); }, 0, 2, 1},
        {"GetAppInfoItemListByClassid", [] { return std::to_string(GetAppInfoItemListByClassid("3")); }, 0, 2, 1},
        {"GetWlanZeroCfgGroupList", [] { return std::to_string(GetWlanZeroCfgGroupList()); }, 0, 2, 1},
        {"DB_getwlanzerocfggroupinfo", read_default_group, 0, 2, 1},
        {"GetWlanZeroCfgGroupInfo", start_group, 0, 2, 1},
        {"DB_savezerocfgwlangroupinfo", [] { return std::to_string(DB_savezerocfgwlangroupinfo({}, 0)); }, 2, 2, 1},
        // 16 lookups, that of the holder of the address, whose row is deleted, and for a registration the count
        {"DB_findinfo", find_stranger, 1, 17, 1},
        {"DB_addinfo", [] { return std::to_string(DB_addinfo(stranger())); }, 4, 18, 1, 3},
        {"GetUrlFilterItemListInServer",
         [] { return build(GetUrlFilterItemListInServer, "select * from filter_url;"); }, 0, 1, 1},
        {"GetMacFilterItemListInServer",
         [] { return build(GetMacFilterItemListInServer, "select * from filter_mac;"); }, 0, 1, 1},
        // beside that of the rules, one for each class and application of each rule
        {"GetBehaviorItemListInServer",
         [] { return build(GetBehaviorItemListInServer, "select * from behavior_rule;"); }, 0, 9, 2},
    };
    return all;
}

}  // namespace samples
