// The functions of the rule tables.
#include "soak/calls/calls.h"

namespace soak {

namespace {

/// The first row, with nothing else in it.
template <typename Record>
const Record &first() {
    static const Record record = [] {
        Record first{};
        first.id = 1;
        return first;
    }();
    return record;
}

constexpr char condition[] = "id='1'";

}  // namespace

// Nearly all tables have these five. The argument of the deletion is a condition or a number.
#define SOAK_TABLE(Record, add, removed)                                    \
    SOAK_CALL("Get" #Record "List",                                         \
              {                                                             \
                  static Record##List list;                                 \
                  Get##Record##List(&list);                                 \
              }),                                                           \
        SOAK_CALL("Get" #Record,                                            \
                  {                                                         \
                      Record record;                                        \
                      Get##Record(1, &record);                              \
                  }),                                                       \
        SOAK_CALL(#add, { add(&first<Record>()); }),                        \
        SOAK_CALL("Modify" #Record, { Modify##Record(&first<Record>()); }), \
        SOAK_CALL("Del" #Record, { Del##Record(removed); })

#define SOAK_BUILDER(builder, List, table)          \
    SOAK_CALL(#builder, {                           \
        static List list;                           \
        builder(&list, "select * from " table ";"); \
    })

/// Two rules name a host.
constexpr Left two_streams{2, 0, 0};

Calls rule_calls() {
    return {
        SOAK_TABLE(DhcpStaticItem, AddDhcpStaticItem, condition),
        SOAK_BUILDER(GetDhcpStaticItemListInServer, DhcpStaticItemList, "dhcpserverstaticbind"),
        SOAK_TABLE(UrlFilterItem, AddUrlFilterItem, condition),
        SOAK_BUILDER(GetUrlFilterItemListInServer, UrlFilterItemList, "filter_url"),
        SOAK_CALL("DelUrlFilterItemById", { DelUrlFilterItemById(condition, 1); }),
        SOAK_TABLE(MacFilterItem, AddMacFilterItem, condition),
        leaves_with_databases(two_streams, SOAK_BUILDER(GetMacFilterItemListInServer, MacFilterItemList, "filter_mac")),
        SOAK_CALL("DelMacFilterItemById", { DelMacFilterItemById(condition, 1); }),
        SOAK_CALL("DelMacFilterItemAll", { DelMacFilterItemAll(); }),
        SOAK_TABLE(IpFilterItem, AddIpFilterItem, condition),
        SOAK_BUILDER(GetIpFilterItemListInServer, IpFilterItemList, "filter_ipport"),
        SOAK_CALL("DelIpFilterItemById", { DelIpFilterItemById(condition, 1); }),
        SOAK_TABLE(TimeGroupItem, AddTimeGroupItem, condition),
        SOAK_BUILDER(GetTimeGroupItemListInServer, TimeGroupItemList, "user_timegroup"),
        SOAK_TABLE(IpGroupItem, AddIpGroupItem, condition),
        SOAK_BUILDER(GetIpGroupItemListInServer, IpGroupItemList, "user_ipgroup"),
        SOAK_TABLE(SmartQosItem, AddSmartQosItem, 1),
        SOAK_BUILDER(GetSmartQosItemListInServer, SmartQosItemList, "smartqos_whitelist"),
        SOAK_TABLE(UserUrlItem, AddUserUrlItem, 1),
        SOAK_BUILDER(GetUserUrlItemListInServer, UserUrlItemList, "user_urlinfo"),
        SOAK_TABLE(FamliyMemberItem, AddFamliyMemberItem, condition),
        SOAK_BUILDER(GetFamliyMemberItemListInServer, FamliyMemberItemList, "famliymember"),
        SOAK_TABLE(PortFwItem, AddPortFwItem, condition),
        SOAK_BUILDER(GetPortFwItemListInServer, PortFwItemList, "forword_ipport"),
        SOAK_TABLE(QosItem, AddQosItem, condition),
        SOAK_BUILDER(GetQosItemListInServer, QosItemList, "qos_rule"),
        SOAK_CALL("DelQosItemById", { DelQosItemById(condition, 1); }),
        SOAK_TABLE(BehaviorItem, AddBehaviortem, condition),
        leaves_with_databases(two_streams,
                              SOAK_BUILDER(GetBehaviorItemListInServer, BehaviorItemList, "behavior_rule")),
        SOAK_CALL("DelBehaviorItemById", { DelBehaviorItemById(condition, 1); }),
        SOAK_TABLE(DomainIpItem, AddDomainIpItem, condition),
        SOAK_BUILDER(GetDomainIpItemListInServer, DomainIpItemList, "domain_ip"),
        SOAK_CALL("GetAclItemList",
                  {
                      static AclItemList list;
                      GetAclItemList(&list, 0);
                  }),
        SOAK_CALL("GetAclItem",
                  {
                      AclItem record;
                      GetAclItem(1, &record, 1);
                  }),
        SOAK_CALL("AddAclItem", { AddAclItem(&first<AclItem>(), 2); }),
        SOAK_CALL("ModifyAclItem", { ModifyAclItem(&first<AclItem>(), 0); }),
        SOAK_CALL("DelAclItem", { DelAclItem(condition, 1); }),
        SOAK_CALL("DelAclItemAll", { DelAclItemAll(2); }),
        SOAK_CALL("DelAclItemByMac", { DelAclItemByMac("00:11:22:33:44:55", 0); }),
        SOAK_BUILDER(Get2GAclItemListInServer, AclItemList, "wifi0acl"),
        SOAK_BUILDER(Get5GAclItemListInServer, AclItemList, "wifi0acl"),
        SOAK_CALL("GetTimeControlById",
                  {
                      TimeGroupItem group;
                      GetTimeControlById(callers.main, 3, &group);
                  }),
        SOAK_CALL("GetIpGroup_IpRangeById",
                  {
                      IpGroupItem group;
                      GetIpGroup_IpRangeById(callers.main, 4, &group);
                  }),
        SOAK_CALL("GetClassNameByClassId",
                  {
                      char names[2][256];
                      GetClassNameByClassId(3, names[0], names[1]);
                  }),
        SOAK_CALL("GetAppNameByClassIdAppfeature",
                  {
                      char names[2][256];
                      GetAppNameByClassIdAppfeature(3, "f1", names[0], names[1]);
                  }),
        SOAK_CALL("GetBehaviorItemInfoTypeName",
                  {
                      char names[2][1024] = {"", ""};
                      GetBehaviorItemInfoTypeName("3:f1?f2AND7:f9", names[0], names[1]);
                  }),
    };
}

}  // namespace soak
