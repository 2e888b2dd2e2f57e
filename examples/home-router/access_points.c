/* Access points: registration, the WLAN group that they follow, and going offline. */
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include "table.h"
#include "tour.h"

static ApDevList devices;

static DevInfo device(const char *name, const char *mac, const char *address) {
    DevInfo dev = {0};
    SET(dev.Dev_Name, name);
    SET(dev.Dev_MAC, mac);
    SET(dev.Dev_Ipaddress, address);
    SET(dev.Dev_Wlan_Radio_Num, "4");
    SET(dev.wlan[0].Enable, "1");
    SET(dev.wlan[0].Ssid, "factory");
    SET(dev.Dev_Wlan_Sta_Num, "3");
    return dev;
}

static void print_devices(void) {
    Table table = {0};
    FreeApDevList(&devices);
    GetApDevList(&devices, 0);
    table_add(&table, (const char *const[]){"Serial number", "Name", "Address", "Status", "Networks", "Stations"});
    for (uint32_t i = 0; i < devices.count; i++) {
        const DevInfo *dev = devices.devices[i];
        char sn[16];
        char networks[224];
        snprintf(sn, sizeof(sn), "%u", dev->Dev_Sn);
        snprintf(networks, sizeof(networks), "%s%s%s", dev->wlan[0].Ssid, *dev->wlan[1].Ssid != '\0' ? ", " : "",
                 dev->wlan[1].Ssid);
        table_add(&table, (const char *const[]){sn, dev->Dev_Name, dev->Dev_Ipaddress,
                                                strcmp(dev->Dev_Status, "1") == 0 ? "online" : "offline", networks,
                                                dev->Dev_Wlan_Sta_Num});
    }
    table_print(&table);
}

/* Prints the events that the stand-in for send_event has noted. They are sent in the background: a few may take their
 * time. */
static int print_events(int expected) {
    int count = 0;
    for (int patience = 100; count < expected && patience > 0; patience--) {
        char line[128];
        FILE *calls = fopen("/var/calls", "r");
        for (count = 0; calls != NULL && fgets(line, sizeof(line), calls) != NULL; count++) {
        }
        if (calls != NULL && count == expected) {
            rewind(calls);
            while (fgets(line, sizeof(line), calls) != NULL) {
                printf("    %s", line);
            }
        }
        if (calls != NULL) {
            fclose(calls);
        }
        usleep(20000);
    }
    return count;
}

void register_access_points(void) {
    const DevInfo reports[] = {
        device("Living room 客厅", "3C:5A:B4:20:00:01", "192.168.1.2"),
        device("Study 书房", "3C:5A:B4:20:00:02", "192.168.1.3"),
        device("Garden", "3C:5A:B4:20:00:03", "192.168.1.4"),
    };
    step("Access points",
         "Three access points report themselves. DB_addinfo gives each the serial number that its\n"
         "   address makes, writes what it reports, and sends an event to the rest of the system.");
    for (size_t i = 0; i < sizeof(reports) / sizeof(reports[0]); i++) {
        DB_addinfo(reports[i]);
    }
    print_devices();
    check(print_events(3) == 3, "three events sent");
    check(devices.count == 3 && GetApDevList_count() == 3, "three access points, all online");
}

/* Reads an access point as the group has it: SSIDs in GB2312. */
static DevInfo stored(uint32_t index) {
    DevInfo dev;
    DB_getinfo(&dev, devices.devices[index]->Dev_Sn, 1);
    return dev;
}

/* Gives an access point the settings of its group and writes them, as the AP-control daemon does. */
static void bring_into_agreement(DevInfo *dev, const DevInfo *group) {
    SetDevInfoFromWlanGroupInfo(dev, group);
    /* The record has the SSIDs in GB2312; the table wants UTF-8. */
    gb2312toutf8(group->wlan[1].Ssid, strlen(group->wlan[1].Ssid), dev->wlan[1].Ssid, sizeof(dev->wlan[1].Ssid));
    DB_UpdateInfo(*dev);
}

void follow_a_group(void) {
    DevInfo group;
    DevInfo first = stored(0);
    DevInfo second = stored(1);
    step("A WLAN group",
         "The living room and the study follow the group \"House 家\". CompareDevInfoWithGroupInfo finds\n"
         "   what differs, SetDevInfoFromWlanGroupInfo and DB_UpdateInfo bring it into agreement.\n");
    DB_getwlangroupinfoByindex(&group, 1);
    bring_into_agreement(&first, &group);
    first = stored(0);
    check(CompareDevInfoWithGroupInfo(first, group) == 0, "%s agrees with its group", first.Dev_Name);
    SET(second.Dev_Wlan_GroupId, "1");
    check(CompareDevInfoWithGroupInfo(second, group) == 1, "%s differs from it", second.Dev_Name);
    bring_into_agreement(&second, &group);
    second = stored(1);
    check(CompareDevInfoWithGroupInfo(second, group) == 0, "%s agrees now", second.Dev_Name);
    print_devices();
    check(strcmp(devices.devices[1]->wlan[1].Ssid, "访客 Guests") == 0, "its guests' network has the group's name");
}

void go_offline(void) {
    step("Offline", "The garden's access point is unplugged. SetDevStatus clears its station counts with its status.");
    SetDevStatus("3C:5A:B4:20:00:03", "0");
    print_devices();
    check(GetApDevList_count() == 2 && strcmp(devices.devices[2]->Dev_Wlan_Sta_Num, "0") == 0,
          "two access points online, no station left on the third");
    FreeApDevList(&devices);
}
