/* Time groups, and URL filters that follow them. */
#include <stdio.h>
#include <string.h>

#include "table.h"
#include "tour.h"

/* Lists are large: one buffer each serves all steps. */
static UrlFilterItemList rules;
static TimeGroupItemList groups;

static TimeGroupItem time_group(const char *name, const char *weekdays, const char *from, const char *to) {
    TimeGroupItem group = {0};
    SET(group.name, name);
    set_weekdays(group.weekday, weekdays);
    SET(group.start_time, from);
    SET(group.end_time, to);
    return group;
}

static UrlFilterItem url_filter_in(const char *name, const char *url, int group) {
    UrlFilterItem rule = {0};
    SET(rule.name, name);
    SET(rule.url, url);
    rule.status = 1;
    rule.timecontrol = ROUTERDB_TIME_GROUP;
    rule.timegroup_id = group;
    return rule;
}

static UrlFilterItem url_filter_at(const char *name, const char *url, const char *weekdays, const char *from,
                                   const char *to) {
    UrlFilterItem rule = url_filter_in(name, url, 0);
    rule.timecontrol = ROUTERDB_TIME_OWN;
    set_weekdays(rule.weekday, weekdays);
    SET(rule.start_time, from);
    SET(rule.end_time, to);
    return rule;
}

static void format_hours(char *text, size_t size, const char *from, const char *to) {
    snprintf(text, size, "%s – %s", from, to);
}

static void print_time_groups(const TimeGroupItemList *list) {
    Table table = {0};
    table_add(&table, (const char *const[]){"Id", "Time group", "Days", "Hours", NULL});
    for (uint32_t i = 0; i < list->count; i++) {
        const TimeGroupItem *group = &list->items[i];
        char id[16];
        char days[64];
        char hours[64];
        snprintf(id, sizeof(id), "%d", group->id);
        format_weekdays(days, sizeof(days), group->weekday);
        format_hours(hours, sizeof(hours), group->start_time, group->end_time);
        table_add(&table, (const char *const[]){id, group->name, days, hours});
    }
    table_print(&table);
}

void print_url_filters(const UrlFilterItemList *list) {
    Table table = {0};
    table_add(&table, (const char *const[]){"Id", "Rule", "Address", "Days", "Hours", "Taken from"});
    for (uint32_t i = 0; i < list->count; i++) {
        const UrlFilterItem *rule = &list->items[i];
        const int own = rule->timecontrol == ROUTERDB_TIME_OWN;
        char id[16];
        char days[64];
        char hours[64];
        snprintf(id, sizeof(id), "%d", rule->id);
        format_weekdays(days, sizeof(days), rule->weekday);
        format_hours(hours, sizeof(hours), rule->start_time, rule->end_time);
        table_add(&table, (const char *const[]){id, rule->name, rule->url, days, hours,
                                                own ? "the rule itself" : rule->timegroup_name});
    }
    table_print(&table);
}

void add_time_groups(void) {
    const TimeGroupItem items[] = {
        time_group("School nights 上学日", "1111100", "20:30", "23:59"),
        time_group("Weekend 周末", "0000011", "22:00", "23:59"),
    };
    step("Time groups",
         "AddTimeGroupItem sends one insert to the SQL service for each group;\n"
         "   GetTimeGroupItemList reads them back.");
    for (size_t i = 0; i < sizeof(items) / sizeof(items[0]); i++) {
        AddTimeGroupItem(&items[i]);
    }
    GetTimeGroupItemList(&groups);
    print_time_groups(&groups);
    check(groups.count == 2 && groups.items[0].weekday[4] == 1, "two groups stored, their ids chosen by the table");
}

void add_url_filters(void) {
    const UrlFilterItem items[] = {
        url_filter_in("No videos 视频", "video.example", groups.items[0].id),
        url_filter_in("No games 游戏", "games.example", groups.items[1].id),
        url_filter_at("Homework hour 作业", "chat.example", "1111000", "16:00", "17:30"),
        url_filter_in("No shopping", "shop.example", groups.items[0].id),
    };
    step("URL filters",
         "Three rules follow a time group, one has hours of its own. The list comes back from the\n"
         "   service with every group resolved to its name, days and hours.");
    for (size_t i = 0; i < sizeof(items) / sizeof(items[0]); i++) {
        AddUrlFilterItem(&items[i]);
    }
    GetUrlFilterItemList(&rules);
    print_url_filters(&rules);
    check(rules.count == 4, "four rules stored");
    check(strcmp(rules.items[0].start_time, "20:30") == 0 && rules.items[0].time_valid == 1,
          "rule %d took its hours from its group", rules.items[0].id);
    check(strcmp(rules.items[2].end_time, "17:30") == 0 && rules.items[2].timegroup_id == 0, "rule %d kept its own",
          rules.items[2].id);
}

void change_a_time_group(void) {
    TimeGroupItem group;
    step("One change, many rules",
         "ModifyTimeGroupItem lets school nights begin an hour earlier;\n"
         "   every rule that follows the group moves with it.");
    GetTimeGroupItem(groups.items[0].id, &group);
    SET(group.start_time, "19:30");
    ModifyTimeGroupItem(&group);
    GetUrlFilterItemList(&rules);
    print_url_filters(&rules);
    check(strcmp(rules.items[0].start_time, "19:30") == 0 && strcmp(rules.items[3].start_time, "19:30") == 0,
          "rules %d and %d begin at 19:30", rules.items[0].id, rules.items[3].id);
}

void delete_two_filters(void) {
    char ids[32];
    char condition[64] = "";
    snprintf(ids, sizeof(ids), "%d#%d", rules.items[1].id, rules.items[3].id);
    step("Several rows at once",
         "The web interface hands over the ids as \"%s\";\n"
         "   generate_db_params turns them into a condition for DelUrlFilterItem.",
         ids);
    generate_db_params(ids, condition, sizeof(condition), ROUTERDB_COLUMN_ID);
    printf("\n    delete from filter_url where %s\n", condition);
    DelUrlFilterItem(condition);
    GetUrlFilterItemList(&rules);
    print_url_filters(&rules);
    check(rules.count == 2, "two rules are left");
}
