/* Starts, reads the name of one access point with the library, and ends. */
#include <routerdb.h>
#include <stdio.h>

int main(void) {
    static DevInfo device;
    DB_getinfo(&device, 218212544, 0);
    puts(device.Dev_Name);
    return 0;
}
