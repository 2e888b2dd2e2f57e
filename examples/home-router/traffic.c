/* Port forwarding, bandwidth, and what devices may do: rules with references to groups and to the catalogue. */
#include <stdio.h>
#include <string.h>

#include "table.h"
#include "tour.h"

static PortFwItem forwarding(const char *name, int outside, const char *device, int inside) {
    PortFwItem rule = {0};
    SET(rule.name, name);
    SET(rule.devip, device);
    rule.protocol = 1;
    rule.devexternfromport = outside;
    rule.devexterntoport = outside;
    rule.devinnerfromport = inside;
    rule.devinnertoport = inside;
    rule.wanid = 1;
    rule.status = 1;
    return rule;
}

void forward_ports(void) {
    static PortFwItemList rules;
    const PortFwItem items[] = {
        forwarding("Photos from outside 照片", 8443, "192.168.1.12", 443),
        forwarding("Game server", 27015, "192.168.1.19", 27015),
    };
    Table table = {0};
    step("Port forwarding", "AddPortFwItem opens two ports towards devices of the house.");
    for (size_t i = 0; i < sizeof(items) / sizeof(items[0]); i++) {
        AddPortFwItem(&items[i]);
    }
    GetPortFwItemList(&rules);
    table_add(&table, (const char *const[]){"Id", "Rule", "From outside", "To", NULL});
    for (uint32_t i = 0; i < rules.count; i++) {
        const PortFwItem *rule = &rules.items[i];
        char id[16];
        char outside[32];
        char inside[64];
        snprintf(id, sizeof(id), "%d", rule->id);
        snprintf(outside, sizeof(outside), "port %d", rule->devexternfromport);
        snprintf(inside, sizeof(inside), "%s port %d", rule->devip, rule->devinnerfromport);
        table_add(&table, (const char *const[]){id, rule->name, outside, inside});
    }
    table_print(&table);
    check(rules.count == 2 && rules.items[0].devinnerfromport == 443, "two ports forwarded");
}

static int add_ip_group(void) {
    static IpGroupItemList groups;
    IpGroupItem group = {0};
    SET(group.name, "Children 孩子");
    SET(group.startip, "192.168.1.100");
    SET(group.endip, "192.168.1.119");
    AddIpGroupItem(&group);
    GetIpGroupItemList(&groups);
    check(groups.count == 1, "group %d, %s: %s to %s", groups.items[0].id, groups.items[0].name,
          groups.items[0].startip, groups.items[0].endip);
    return groups.items[0].id;
}

void share_bandwidth(void) {
    static QosItemList rules;
    QosItem rule = {0};
    char limits[64];
    Table table = {0};
    step("Bandwidth",
         "A group of addresses is limited on school nights. The rule names both groups by number; the\n"
         "   list comes back with their names, the address range, the days and the hours.");
    printf("\n");
    SET(rule.name, "Evening limit");
    rule.ipcontrol = ROUTERDB_IP_GROUP;
    rule.ipgroup_id = add_ip_group();
    rule.timecontrol = ROUTERDB_TIME_GROUP;
    rule.timegroup_id = 1;
    rule.bw_up = 1024;
    rule.bw_down = 4096;
    rule.status = 1;
    AddQosItem(&rule);
    GetQosItemList(&rules);
    snprintf(limits, sizeof(limits), "%d up, %d down", rules.items[0].bw_up, rules.items[0].bw_down);
    table_add(&table, (const char *const[]){"Rule", "For", "Addresses from", "When", "Hours from", "kbit/s"});
    table_add(&table,
              (const char *const[]){rules.items[0].name, rules.items[0].ipgroup_name, rules.items[0].ipgroup.startip,
                                    rules.items[0].timegroup_name, rules.items[0].start_time, limits});
    table_print(&table);
    check(rules.count == 1 && strcmp(rules.items[0].ipgroup_name, "Children 孩子") == 0, "both groups resolved");
}

void limit_behaviour(void) {
    static BehaviorItemList rules;
    BehaviorItem rule = {0};
    const BehaviorItem *stored = &rules.items[0];
    step("Behaviour",
         "A rule holds classes and applications by number and feature. The list has them by name, in two\n"
         "   languages, and the device by the host name of its DHCP lease.");
    SET(rule.devmac, "3C:5A:B4:10:00:09");
    SET(rule.behavior_info, "1:vid-a?vid-bAND2:gam-a");
    rule.timecontrol = ROUTERDB_TIME_OWN;
    set_weekdays(rule.weekday, "1111111");
    SET(rule.start_time, "18:00");
    SET(rule.end_time, "19:00");
    rule.status = 1;
    AddBehaviortem(&rule);
    GetBehaviorItemList(&rules);
    printf("\n    stored    %s\n    device    %s, host name %s\n    names     %s\n    English   %s\n\n",
           stored->behavior_info, stored->devmac, stored->hostname, stored->behavior_names, stored->behavior_names_en);
    check(rules.count == 1 && strcmp(stored->hostname, "console") == 0, "the lease told the host name");
    check(strcmp(stored->behavior_names_en, "Video:Example Video?Example LiveANDGames:Example Quest") == 0,
          "the catalogue told the names");
}
