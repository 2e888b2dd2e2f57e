/* A tour of the library on the data of a home router. It talks to the running SQL service like any program of the
 * router, checks every step against what should have come of it, and ends with status 0 only if all did. */
#include <locale.h>
#include <stdio.h>
#include <stdlib.h>

#include "tour.h"

int main(void) {
    setlocale(LC_CTYPE, "C.UTF-8");
    setvbuf(stdout, NULL, _IOLBF, 0);
    printf("\nA home router, its SQL service running: three devices have addresses of their own, no rules yet.\n");
    show_devices();
    refuse_a_clash();
    add_time_groups();
    add_url_filters();
    change_a_time_group();
    delete_two_filters();
    forward_ports();
    share_bandwidth();
    limit_behaviour();
    register_access_points();
    follow_a_group();
    go_offline();
    lose_and_restore();
    printf("\nAll steps did what they say.\n");
    return EXIT_SUCCESS;
}
