/* The steps of the tour. Each shows one thing, checks it, and ends the program with a failure if it did not happen. */
#ifndef TOUR_H
#define TOUR_H

#include <routerdb.h>
#include <stddef.h>

void show_devices(void);           /* devices.c */
void refuse_a_clash(void);         /* devices.c */
void add_time_groups(void);        /* url_filters.c */
void add_url_filters(void);        /* url_filters.c */
void change_a_time_group(void);    /* url_filters.c */
void delete_two_filters(void);     /* url_filters.c */
void forward_ports(void);          /* traffic.c */
void share_bandwidth(void);        /* traffic.c */
void limit_behaviour(void);        /* traffic.c */
void register_access_points(void); /* access_points.c */
void follow_a_group(void);         /* access_points.c */
void go_offline(void);             /* access_points.c */
void lose_and_restore(void);       /* recovery.c */

/* Prints the heading of a step and what it does. */
__attribute__((format(printf, 2, 3))) void step(const char *title, const char *what, ...);

/* Prints what should be so now; ends the program if it is not. */
__attribute__((format(printf, 2, 3))) void check(int holds, const char *what, ...);

/* Fills a text field of a record. */
#define SET(field, text) snprintf((field), sizeof(field), "%s", (text))

/* Weekdays as seven digits, Monday first: "1111100" is a working week. */
void set_weekdays(int32_t *weekday, const char *digits);

/* "Mon Tue Wed Thu Fri", with dots for the days between. */
void format_weekdays(char *text, size_t size, const int32_t *weekday);

/* Prints the URL filters and the hours they hold. */
void print_url_filters(const UrlFilterItemList *list);

#endif
