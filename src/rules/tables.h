// The one list of rule tables: whoever needs all of them walks it.
#pragma once

#include "rules/tables/acl.h"
#include "rules/tables/behavior_rule.h"
#include "rules/tables/dhcpserverstaticbind.h"
#include "rules/tables/domain_ip.h"
#include "rules/tables/famliymember.h"
#include "rules/tables/filter_ipport.h"
#include "rules/tables/filter_mac.h"
#include "rules/tables/filter_url.h"
#include "rules/tables/forword_ipport.h"
#include "rules/tables/qos_rule.h"
#include "rules/tables/smartqos_whitelist.h"
#include "rules/tables/user_ipgroup.h"
#include "rules/tables/user_timegroup.h"
#include "rules/tables/user_urlinfo.h"

// Each row is given to ROW: the table's name in SQL, which is also its namespace in routerdb::tables; its record, whose
// list is named ...List; the builder of that list; its name for people.
// clang-format off
#define ROUTERDB_RULE_TABLES(ROW)                                                                                 \
    ROW(dhcpserverstaticbind, DhcpStaticItem,   GetDhcpStaticItemListInServer,   "static-binding")                \
    ROW(filter_url,           UrlFilterItem,    GetUrlFilterItemListInServer,    "url-filter")                    \
    ROW(filter_mac,           MacFilterItem,    GetMacFilterItemListInServer,    "mac-filter")                    \
    ROW(filter_ipport,        IpFilterItem,     GetIpFilterItemListInServer,     "ip-filter")                     \
    ROW(user_timegroup,       TimeGroupItem,    GetTimeGroupItemListInServer,    "time-group")                    \
    ROW(user_ipgroup,         IpGroupItem,      GetIpGroupItemListInServer,      "ip-group")                      \
    ROW(smartqos_whitelist,   SmartQosItem,     GetSmartQosItemListInServer,     "smart-qos")                     \
    ROW(user_urlinfo,         UserUrlItem,      GetUserUrlItemListInServer,      "user-url")                      \
    ROW(famliymember,         FamliyMemberItem, GetFamliyMemberItemListInServer, "family-member")                 \
    ROW(forword_ipport,       PortFwItem,       GetPortFwItemListInServer,       "port-forward")                  \
    ROW(qos_rule,             QosItem,          GetQosItemListInServer,          "qos")                           \
    ROW(behavior_rule,        BehaviorItem,     GetBehaviorItemListInServer,     "behavior")                      \
    ROW(wifi0acl,             AclItem,          Get2GAclItemListInServer,        "wifi0-acl")                     \
    ROW(wifi1acl,             AclItem,          Get5GAclItemListInServer,        "wifi1-acl")                     \
    ROW(wifi2acl,             AclItem,          Get5GAclItemListInServer,        "wifi2-acl")                     \
    ROW(domain_ip,            DomainIpItem,     GetDomainIpItemListInServer,     "domain-ip")
// clang-format on
