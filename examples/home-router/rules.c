#include "rules.h"

#include <stdio.h>
#include <string.h>

#include "table.h"

#define SET(field, text) snprintf((field), sizeof(field), "%s", (text))

static void set_weekdays(int32_t *weekday, const char *digits) {
    for (int day = 0; day < 7; day++) {
        weekday[day] = digits[day] - '0';
    }
}

TimeGroupItem time_group(const char *name, const char *weekdays, const char *from, const char *to) {
    TimeGroupItem group = {0};
    SET(group.name, name);
    set_weekdays(group.weekday, weekdays);
    SET(group.start_time, from);
    SET(group.end_time, to);
    return group;
}

static UrlFilterItem url_filter(const char *name, const char *url) {
    UrlFilterItem rule = {0};
    SET(rule.name, name);
    SET(rule.url, url);
    rule.status = 1;
    return rule;
}

UrlFilterItem url_filter_at(const char *name, const char *url, const char *weekdays, const char *from, const char *to) {
    UrlFilterItem rule = url_filter(name, url);
    rule.timecontrol = ROUTERDB_TIME_OWN;
    set_weekdays(rule.weekday, weekdays);
    SET(rule.start_time, from);
    SET(rule.end_time, to);
    return rule;
}

UrlFilterItem url_filter_in(const char *name, const char *url, int group) {
    UrlFilterItem rule = url_filter(name, url);
    rule.timecontrol = ROUTERDB_TIME_GROUP;
    rule.timegroup_id = group;
    return rule;
}

/* "Mon Tue Wed Thu Fri", with dots for the days between. */
static void format_weekdays(char *text, size_t size, const int32_t *weekday) {
    static const char names[7][4] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    size_t length = 0;
    for (int day = 0; day < 7; day++) {
        length += (size_t)snprintf(text + length, size - length, "%s%s", day == 0 ? "" : " ",
                                   weekday[day] ? names[day] : " · ");
    }
}

static void format_times(char *text, size_t size, const char *from, const char *to) {
    snprintf(text, size, "%s – %s", from, to);
}

static void format_number(char *text, size_t size, int number) {
    snprintf(text, size, "%d", number);
}

void show_time_groups(const TimeGroupItemList *list) {
    Table table = {0};
    table_add(&table, (const char *const[]){"Id", "Time group", "Days", "Hours", NULL});
    for (uint32_t i = 0; i < list->count && i < TABLE_ROWS; i++) {
        const TimeGroupItem *group = &list->items[i];
        char id[16];
        char days[64];
        char hours[64];
        format_number(id, sizeof(id), group->id);
        format_weekdays(days, sizeof(days), group->weekday);
        format_times(hours, sizeof(hours), group->start_time, group->end_time);
        table_add(&table, (const char *const[]){id, group->name, days, hours});
    }
    table_print(&table);
}

void show_url_filters(const UrlFilterItemList *list) {
    Table table = {0};
    table_add(&table, (const char *const[]){"Id", "Rule", "Address", "Days", "Hours", "Taken from"});
    for (uint32_t i = 0; i < list->count && i < TABLE_ROWS; i++) {
        const UrlFilterItem *rule = &list->items[i];
        char id[16];
        char days[64];
        char hours[64];
        char source[200];
        format_number(id, sizeof(id), rule->id);
        format_weekdays(days, sizeof(days), rule->weekday);
        format_times(hours, sizeof(hours), rule->start_time, rule->end_time);
        if (rule->timecontrol == ROUTERDB_TIME_GROUP) {
            snprintf(source, sizeof(source), "group %d, %s", rule->timegroup_id, rule->timegroup_name);
        } else {
            snprintf(source, sizeof(source), "the rule itself");
        }
        table_add(&table, (const char *const[]){id, rule->name, rule->url, days, hours, source});
    }
    table_print(&table);
}
