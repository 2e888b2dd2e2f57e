/* Static DHCP bindings: devices that always get the same address. */
#include <stdio.h>
#include <string.h>

#include "table.h"
#include "tour.h"

static DhcpStaticItemList bindings;

static void print_bindings(void) {
    Table table = {0};
    table_add(&table, (const char *const[]){"Id", "Address", "MAC", "Device", NULL});
    for (uint32_t i = 0; i < bindings.count; i++) {
        const DhcpStaticItem *binding = &bindings.items[i];
        char id[16];
        snprintf(id, sizeof(id), "%d", binding->id);
        table_add(&table, (const char *const[]){id, binding->ip, binding->mac, binding->mark});
    }
    table_print(&table);
}

static DhcpStaticItem binding(const char *ip, const char *mac, const char *device) {
    DhcpStaticItem item = {0};
    item.devtype = 1;
    SET(item.ip, ip);
    SET(item.mac, mac);
    SET(item.mark, device);
    return item;
}

void show_devices(void) {
    step("Devices",
         "GetDhcpStaticItemList asks the SQL service for the static DHCP bindings; GET_DB_SQL_INT counts\n"
         "   them straight in the file.");
    GetDhcpStaticItemList(&bindings);
    print_bindings();
    check(bindings.count == 3 && GET_DB_SQL_INT("select * from dhcpserverstaticbind;") == 3,
          "three bindings on either road, their texts in UTF-8");
}

void refuse_a_clash(void) {
    const DhcpStaticItem same_ip = binding("192.168.1.11", "3C:5A:B4:10:00:09", "Game console");
    const DhcpStaticItem same_mac = binding("192.168.1.19", "3C:5A:B4:10:00:02", "Game console");
    const DhcpStaticItem console = binding("192.168.1.19", "3C:5A:B4:10:00:09", "游戏机 Game console");
    step("A clash refused", "A game console moves in. AddDhcpStaticItem asks first whether its addresses are free.");
    printf("\n");
    check(AddDhcpStaticItem(&same_ip) == 1, "with the printer's IP address: refused, result 1");
    check(AddDhcpStaticItem(&same_mac) == 2, "with the printer's MAC address: refused, result 2");
    check(AddDhcpStaticItem(&console) == 0, "with addresses of its own: taken in, result 0");
    GetDhcpStaticItemList(&bindings);
    print_bindings();
    check(bindings.count == 4 && strcmp(bindings.items[3].ip, "192.168.1.19") == 0, "four bindings now");
}
