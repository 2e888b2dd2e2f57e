#include <routerdb.h>
#include <stdio.h>

int main(void) {
    const DhcpStaticItem first = {.mac = "02:00:5e:10:00:01", .ip = "192.168.1.20"};
    const DhcpStaticItem second = {.mac = "02:00:5e:10:00:02", .ip = "192.168.1.20"};
    const int added = AddDhcpStaticItem(&first);
    const int clash = AddDhcpStaticItem(&second);
    printf("%d %d\n", added, clash); /* 1: somebody has the address, 2: somebody has the MAC address */
    return 0;
}
