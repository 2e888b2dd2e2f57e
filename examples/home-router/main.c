/* A tour of the library on the data of a home router. It talks to the running SQL service like any program of the
 * router, checks every step against what should have come of it, and ends with status 0 only if all did. */
#include <locale.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "rules.h"

static int step_number;

__attribute__((format(printf, 2, 3))) static void step(const char *title, const char *what, ...) {
    va_list arguments;
    va_start(arguments, what);
    printf("%d. %s\n   ", ++step_number, title);
    vprintf(what, arguments);
    printf("\n");
    va_end(arguments);
}

__attribute__((format(printf, 2, 3))) static void check(int holds, const char *what, ...) {
    va_list arguments;
    va_start(arguments, what);
    printf("   %s ", holds ? "✓" : "✗ NOT SO:");
    vprintf(what, arguments);
    printf("\n");
    va_end(arguments);
    if (!holds) {
        exit(EXIT_FAILURE);
    }
}

/* Lists are large: one buffer serves all of the tour. */
static UrlFilterItemList rules;
static TimeGroupItemList groups;

static void meet_the_house(void) {
    char printer[160] = "";
    const int devices = GET_DB_SQL_INT("select * from dhcpserverstaticbind;");
    const int first = GET_DB_SQL_INT_COUNT_ROUTE("select min(id) from dhcpserverstaticbind;");
    DB_EXEC_SQL_CHAR_CHAR("select mark from dhcpserverstaticbind where ip='192.168.1.11';", printer);
    step("Devices of the house",
         "The statement helpers open the main database themselves, count its static DHCP\n"
         "   bindings and read one of them.");
    printf("   select * from dhcpserverstaticbind;  gives %d rows, the first with id %d\n", devices, first);
    printf("   192.168.1.11 is kept for: %s\n", printer);
    check(devices == 3 && strcmp(printer, "书房打印机 Printer") == 0, "three bindings, their texts in UTF-8");
}

static void add_time_groups(void) {
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
    show_time_groups(&groups);
    check(groups.count == 2 && groups.items[0].weekday[4] == 1, "two groups stored, their ids chosen by the table");
}

static void add_rules(void) {
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
    show_url_filters(&rules);
    check(rules.count == 4, "four rules stored");
    check(strcmp(rules.items[0].start_time, "20:30") == 0 && rules.items[0].time_valid == 1,
          "rule %d took its hours from its group", rules.items[0].id);
    check(strcmp(rules.items[2].end_time, "17:30") == 0 && rules.items[2].timegroup_id == 0, "rule %d kept its own",
          rules.items[2].id);
}

static void change_a_group(void) {
    TimeGroupItem group;
    step("One change, many rules",
         "ModifyTimeGroupItem lets school nights begin an hour earlier;\n"
         "   every rule that follows the group moves with it.");
    GetTimeGroupItem(groups.items[0].id, &group);
    snprintf(group.start_time, sizeof(group.start_time), "19:30");
    ModifyTimeGroupItem(&group);
    GetUrlFilterItemList(&rules);
    show_url_filters(&rules);
    check(strcmp(rules.items[0].start_time, "19:30") == 0 && strcmp(rules.items[3].start_time, "19:30") == 0,
          "rules %d and %d begin at 19:30", rules.items[0].id, rules.items[3].id);
}

static void delete_two(void) {
    char ids[32];
    char condition[64] = "";
    snprintf(ids, sizeof(ids), "%d#%d", rules.items[1].id, rules.items[3].id);
    step("Several rows at once",
         "The web interface hands over the ids as \"%s\";\n"
         "   generate_db_params turns them into a condition for DelUrlFilterItem.",
         ids);
    generate_db_params(ids, condition, sizeof(condition), ROUTERDB_COLUMN_ID);
    printf("   delete from filter_url where %s\n", condition);
    DelUrlFilterItem(condition);
    GetUrlFilterItemList(&rules);
    show_url_filters(&rules);
    check(rules.count == 2, "two rules are left");
}

static void lose_and_restore(void) {
    static UrlFilterItemList before;
    before = rules;
    step("Backup, accident, restore",
         "backup_sqlite_db copies the database; then a hasty statement deletes every rule,\n"
         "   and restore_sqlite_db brings the copy back.");
    check(backup_sqlite_db() == 0, "backup made");
    check(DB_EXEC_SQL_CHAR("delete from filter_url; delete from user_timegroup;") == 0,
          "\"delete from filter_url; delete from user_timegroup;\" executed");
    GetUrlFilterItemList(&rules);
    check(rules.count == 0, "the list is empty now");
    check(restore_sqlite_db() == 0, "backup restored");
    GetUrlFilterItemList(&rules);
    show_url_filters(&rules);
    check(memcmp(&rules, &before, sizeof(rules)) == 0, "every byte of the list is as it was");
}

int main(void) {
    setlocale(LC_CTYPE, "C.UTF-8");
    setvbuf(stdout, NULL, _IOLBF, 0);
    printf("\nA home router, its SQL service running, no rules yet\n\n");
    meet_the_house();
    printf("\n");
    add_time_groups();
    printf("\n");
    add_rules();
    printf("\n");
    change_a_group();
    printf("\n");
    delete_two();
    printf("\n");
    lose_and_restore();
    printf("\nAll steps did what they say.\n");
    return EXIT_SUCCESS;
}
