/* The access points, one page of them:
 *
 *   page=N         from 1
 *   size=N         rows of a page, 17 unless given
 *   filter=WHICH   "all", "online" or "offline"
 *   ip=TEXT        those with this in their address
 *   mac=TEXT       those with this in their MAC address */
#include <routerdb.h>
#include <string.h>

#include "answer.h"
#include "checks.h"
#include "request.h"

enum { PAGE, SIZE, FILTER, IP, MAC, COUNT };
enum { ALL_OF_THEM = 0, ONLINE = 1, OFFLINE = 2, SEARCH = 3 };

static int mode_of(const char *filter) {
    if (strcmp(filter, "online") == 0) {
        return ONLINE;
    }
    return strcmp(filter, "offline") == 0 ? OFFLINE : ALL_OF_THEM;
}

int main(void) {
    Parameter parameters[COUNT] = {
        [PAGE] = {"page", is_number, "a number from 1 to 9999", "1", 0},
        [SIZE] = {"size", is_number, "a number from 1 to 9999", "17", 0},
        [FILTER] = {"filter", is_filter, "all, online or offline", "all", 0},
        [IP] = {"ip", is_address_part, "digits and dots, 15 at most", "", 0},
        [MAC] = {"mac", is_mac_part, "hexadecimal digits and colons, 17 at most", "", 0},
    };
    read_request(parameters, COUNT);
    const char *ip = parameters[IP].value;
    const char *mac = parameters[MAC].value;
    int mode = mode_of(parameters[FILTER].value);
    if (*ip != '\0' || *mac != '\0') {
        if (mode != ALL_OF_THEM) {
            refuse("filter", "a search is among all access points");
        }
        mode = SEARCH;
    }
    need_database(MAIN_DATABASE);
    begin_answer("database", "busy");
    GetApDevList_cgi(number_in(parameters[PAGE].value), mode, 0, 0, ip, mac, number_in(parameters[SIZE].value));
    return end_answer();
}
