/* The rules of the house, and how they are shown. */
#ifndef RULES_H
#define RULES_H

#include <routerdb.h>

/* Weekdays as seven digits, Monday first: "1111100" is a working week. */
TimeGroupItem time_group(const char *name, const char *weekdays, const char *from, const char *to);

/* A rule that holds at its own times. */
UrlFilterItem url_filter_at(const char *name, const char *url, const char *weekdays, const char *from, const char *to);

/* A rule that holds at the times of a group. */
UrlFilterItem url_filter_in(const char *name, const char *url, int group);

void show_time_groups(const TimeGroupItemList *list);
void show_url_filters(const UrlFilterItemList *list);

#endif
