// The records are a wire format: both ends of the service's socket and every caller share them. A layout that changes
// stops the build, on 32 and on 64 bits.
#include "routerdb.h"

#define RECORD(record, size, list_size) \
    static_assert(sizeof(record) == (size) && sizeof(record##List) == (list_size), #record " has another size")
#define MEMBER(record, member, offset, width)                                                \
    static_assert(offsetof(record, member) == (offset) && sizeof(record::member) == (width), \
                  #record "::" #member " lies elsewhere")

// A member that holds a pointer is as wide as the platform's pointers.
constexpr bool target = sizeof(void *) == 4;

static_assert(sizeof(SqlReply) == (target ? 16 : 24));
static_assert(sizeof(SqlRequest) == (target ? 16 : 24));
MEMBER(SqlRequest, table_id, 0, 4);
MEMBER(SqlRequest, operation, 4, 4);
MEMBER(SqlRequest, length, 8, 4);
MEMBER(SqlRequest, text, target ? 12 : 16, sizeof(void *));
MEMBER(SqlReply, word0, 0, 4);
MEMBER(SqlReply, word1, 4, 4);
MEMBER(SqlReply, size, 8, 4);
MEMBER(SqlReply, data, target ? 12 : 16, sizeof(void *));

// What `filter_url` carries of a time group is its beginning.
static_assert(sizeof(TimeGroupItemCut) == 376);
MEMBER(TimeGroupItemCut, id, 0, 4);
MEMBER(TimeGroupItemCut, name, 4, 152);
MEMBER(TimeGroupItemCut, weekday, 156, 28);
MEMBER(TimeGroupItemCut, start_time, 184, 20);
MEMBER(TimeGroupItemCut, end_time, 204, 20);
MEMBER(TimeGroupItemCut, mark, 224, 152);

RECORD(DhcpStaticItem, 352, 45060);
MEMBER(DhcpStaticItem, id, 0, 4);
MEMBER(DhcpStaticItem, reserved, 4, 152);
MEMBER(DhcpStaticItem, devtype, 156, 4);
MEMBER(DhcpStaticItem, mac, 160, 20);
MEMBER(DhcpStaticItem, ip, 180, 20);
MEMBER(DhcpStaticItem, mark, 200, 152);

RECORD(UrlFilterItem, 1952, 249860);
MEMBER(UrlFilterItem, id, 0, 4);
MEMBER(UrlFilterItem, name, 4, 150);
MEMBER(UrlFilterItem, url, 154, 1030);
MEMBER(UrlFilterItem, timegroup, 1184, 376);
MEMBER(UrlFilterItem, time_valid, 1560, 4);
MEMBER(UrlFilterItem, timecontrol, 1564, 4);
MEMBER(UrlFilterItem, timegroup_id, 1568, 4);
MEMBER(UrlFilterItem, timegroup_name, 1572, 152);
MEMBER(UrlFilterItem, weekday, 1724, 28);
MEMBER(UrlFilterItem, start_time, 1752, 20);
MEMBER(UrlFilterItem, end_time, 1772, 20);
MEMBER(UrlFilterItem, status, 1792, 4);
MEMBER(UrlFilterItem, reserved, 1796, 4);
MEMBER(UrlFilterItem, mark, 1800, 152);

RECORD(MacFilterItem, 1088, 139268);
MEMBER(MacFilterItem, id, 0, 4);
MEMBER(MacFilterItem, name, 4, 150);
MEMBER(MacFilterItem, hostname, 154, 150);
MEMBER(MacFilterItem, devmac, 304, 20);
MEMBER(MacFilterItem, timecontrol, 324, 4);
MEMBER(MacFilterItem, timegroup_id, 328, 4);
MEMBER(MacFilterItem, timegroup_name, 332, 152);
MEMBER(MacFilterItem, weekday, 484, 28);
MEMBER(MacFilterItem, start_time, 512, 20);
MEMBER(MacFilterItem, end_time, 532, 20);
MEMBER(MacFilterItem, status, 552, 4);
MEMBER(MacFilterItem, mark, 556, 152);
MEMBER(MacFilterItem, timegroup, 708, 380);

RECORD(IpFilterItem, 1652, 211460);
MEMBER(IpFilterItem, id, 0, 4);
MEMBER(IpFilterItem, name, 4, 300);
MEMBER(IpFilterItem, ipcontrol, 304, 4);
MEMBER(IpFilterItem, ipgroup_id, 308, 4);
MEMBER(IpFilterItem, ipgroup_name, 312, 152);
MEMBER(IpFilterItem, timecontrol, 464, 4);
MEMBER(IpFilterItem, timegroup_id, 468, 4);
MEMBER(IpFilterItem, timegroup_name, 472, 152);
MEMBER(IpFilterItem, timegroup, 624, 380);
MEMBER(IpFilterItem, ipgroup, 1004, 368);
MEMBER(IpFilterItem, weekday, 1372, 28);
MEMBER(IpFilterItem, start_time, 1400, 20);
MEMBER(IpFilterItem, end_time, 1420, 20);
MEMBER(IpFilterItem, devstartip, 1440, 20);
MEMBER(IpFilterItem, devendip, 1460, 20);
MEMBER(IpFilterItem, devfromport, 1480, 4);
MEMBER(IpFilterItem, devtoport, 1484, 4);
MEMBER(IpFilterItem, protocol, 1488, 4);
MEMBER(IpFilterItem, mark, 1492, 152);
MEMBER(IpFilterItem, status, 1644, 4);
MEMBER(IpFilterItem, reserved, 1648, 4);

RECORD(TimeGroupItem, 380, 48644);
MEMBER(TimeGroupItem, id, 0, 4);
MEMBER(TimeGroupItem, name, 4, 152);
MEMBER(TimeGroupItem, weekday, 156, 28);
MEMBER(TimeGroupItem, start_time, 184, 20);
MEMBER(TimeGroupItem, end_time, 204, 20);
MEMBER(TimeGroupItem, mark, 224, 156);

RECORD(IpGroupItem, 368, 47108);
MEMBER(IpGroupItem, id, 0, 4);
MEMBER(IpGroupItem, name, 4, 150);
MEMBER(IpGroupItem, startip, 154, 30);
MEMBER(IpGroupItem, endip, 184, 30);
MEMBER(IpGroupItem, mark, 214, 154);

RECORD(SmartQosItem, 328, 41988);
MEMBER(SmartQosItem, id, 0, 4);
MEMBER(SmartQosItem, reserved, 4, 150);
MEMBER(SmartQosItem, devmac, 154, 20);
MEMBER(SmartQosItem, mark, 174, 154);

RECORD(UserUrlItem, 820, 104964);
MEMBER(UserUrlItem, id, 0, 4);
MEMBER(UserUrlItem, name, 4, 150);
MEMBER(UserUrlItem, url, 154, 512);
MEMBER(UserUrlItem, mark, 666, 154);

RECORD(FamliyMemberItem, 336, 43012);
MEMBER(FamliyMemberItem, id, 0, 4);
MEMBER(FamliyMemberItem, name, 4, 150);
MEMBER(FamliyMemberItem, mac, 154, 20);
MEMBER(FamliyMemberItem, reserved, 174, 2);
MEMBER(FamliyMemberItem, devtype, 176, 4);
MEMBER(FamliyMemberItem, mark, 180, 156);

RECORD(PortFwItem, 508, 65028);
MEMBER(PortFwItem, id, 0, 4);
MEMBER(PortFwItem, name, 4, 300);
MEMBER(PortFwItem, protocol, 304, 4);
MEMBER(PortFwItem, devip, 308, 20);
MEMBER(PortFwItem, devexternfromport, 328, 4);
MEMBER(PortFwItem, devexterntoport, 332, 4);
MEMBER(PortFwItem, devinnerfromport, 336, 4);
MEMBER(PortFwItem, devinnertoport, 340, 4);
MEMBER(PortFwItem, status, 344, 4);
MEMBER(PortFwItem, mark, 348, 152);
MEMBER(PortFwItem, wanid, 500, 4);
MEMBER(PortFwItem, reserved, 504, 4);

RECORD(QosItem, 1676, 214532);
MEMBER(QosItem, id, 0, 4);
MEMBER(QosItem, name, 4, 300);
MEMBER(QosItem, control_type, 304, 4);
MEMBER(QosItem, ipcontrol, 308, 4);
MEMBER(QosItem, ipgroup_id, 312, 4);
MEMBER(QosItem, ipgroup_name, 316, 152);
MEMBER(QosItem, ipgroup, 468, 368);
MEMBER(QosItem, timecontrol, 836, 4);
MEMBER(QosItem, timegroup_id, 840, 4);
MEMBER(QosItem, timegroup_name, 844, 152);
MEMBER(QosItem, timegroup, 996, 380);
MEMBER(QosItem, devmac, 1376, 20);
MEMBER(QosItem, devstartip, 1396, 20);
MEMBER(QosItem, devendip, 1416, 20);
MEMBER(QosItem, bw_up, 1436, 4);
MEMBER(QosItem, bw_down, 1440, 4);
MEMBER(QosItem, bw_shared_mode, 1444, 4);
MEMBER(QosItem, weekday, 1448, 28);
MEMBER(QosItem, start_time, 1476, 20);
MEMBER(QosItem, end_time, 1496, 20);
MEMBER(QosItem, status, 1516, 4);
MEMBER(QosItem, reserved, 1520, 4);
MEMBER(QosItem, mark, 1524, 152);

RECORD(BehaviorItem, 7680, 983044);
MEMBER(BehaviorItem, id, 0, 4);
MEMBER(BehaviorItem, control_type, 4, 4);
MEMBER(BehaviorItem, hostname, 8, 152);
MEMBER(BehaviorItem, ipcontrol, 160, 4);
MEMBER(BehaviorItem, ipgroup_id, 164, 4);
MEMBER(BehaviorItem, ipgroup, 168, 368);
MEMBER(BehaviorItem, ipgroup_name, 536, 152);
MEMBER(BehaviorItem, timecontrol, 688, 4);
MEMBER(BehaviorItem, timegroup_id, 692, 4);
MEMBER(BehaviorItem, timegroup_name, 696, 152);
MEMBER(BehaviorItem, timegroup, 848, 380);
MEMBER(BehaviorItem, devmac, 1228, 20);
MEMBER(BehaviorItem, devstartip, 1248, 30);
MEMBER(BehaviorItem, devendip, 1278, 30);
MEMBER(BehaviorItem, behavior_info, 1308, 2048);
MEMBER(BehaviorItem, behavior_names, 3356, 2048);
MEMBER(BehaviorItem, behavior_names_en, 5404, 2048);
MEMBER(BehaviorItem, weekday, 7452, 28);
MEMBER(BehaviorItem, start_time, 7480, 20);
MEMBER(BehaviorItem, end_time, 7500, 20);
MEMBER(BehaviorItem, mark, 7520, 152);
MEMBER(BehaviorItem, status, 7672, 4);
MEMBER(BehaviorItem, reserved, 7676, 4);

RECORD(AclItem, 480, 61444);
MEMBER(AclItem, id, 0, 4);
MEMBER(AclItem, name, 4, 300);
MEMBER(AclItem, mac, 304, 20);
MEMBER(AclItem, mark, 324, 152);
MEMBER(AclItem, status, 476, 4);

RECORD(DomainIpItem, 676, 86532);
MEMBER(DomainIpItem, id, 0, 4);
MEMBER(DomainIpItem, name, 4, 300);
MEMBER(DomainIpItem, domain, 304, 150);
MEMBER(DomainIpItem, ip, 454, 64);
MEMBER(DomainIpItem, mark, 518, 150);
MEMBER(DomainIpItem, status, 668, 4);
MEMBER(DomainIpItem, reserved, 672, 4);

#undef RECORD
#undef MEMBER
