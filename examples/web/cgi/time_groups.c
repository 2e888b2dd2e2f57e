/* The time groups, and the URL filters that follow them. A GET lists both; the page's form changes one group, and is
 * answered with the lists as they are then:
 *
 *   action=WHAT            "add", "edit" or "remove"
 *   id=N, version=TEXT     the row to edit or remove, as the list gave them
 *   name, mark=TEXT        what people call it, a remark
 *   days, from, to=TEXT    "1111100", "20:30", "23:59" */
#include <stdio.h>
#include <string.h>

#include "answer.h"
#include "rules.h"

/* Less than a group has room for: URL filters carry their group's remark in so many. */
enum { LONGEST_MARK = 151 };

/* What the form says, as a record. */
static TimeGroupItem sent_row(const Parameter *form) {
    TimeGroupItem row = {0};
    if (*form[NAME].value == '\0') {
        refuse("form", "a name is needed");
    }
    row.id = number_in(form[ID].value);
    copy_value(row.name, sizeof(row.name), &form[NAME]);
    copy_value(row.mark, sizeof(row.mark), &form[MARK]);
    copy_times(form, row.weekday, row.start_time, row.end_time);
    return row;
}

/* Whether the row that was read back is the one that was sent. */
static void compare(const TimeGroupItem *row, const TimeGroupItem *sent) {
    if (row == NULL || strcmp(row->name, sent->name) != 0 || strcmp(row->mark, sent->mark) != 0 ||
        memcmp(row->weekday, sent->weekday, sizeof(row->weekday)) != 0 ||
        strcmp(row->start_time, sent->start_time) != 0 || strcmp(row->end_time, sent->end_time) != 0) {
        not_stored();
    }
}

/* The table chooses the id: a higher one than all before. */
static void add(const Parameter *form) {
    const TimeGroupItem sent = sent_row(form);
    const uint32_t count = time_groups.count;
    const int last = count == 0 ? 0 : time_groups.items[count - 1].id;
    need_room(count);
    AddTimeGroupItem(&sent);
    read_rules();
    const TimeGroupItem *row = time_groups.count == 0 ? NULL : &time_groups.items[time_groups.count - 1];
    compare(row != NULL && row->id > last ? row : NULL, &sent);
}

static void edit(const Parameter *form) {
    const TimeGroupItem sent = sent_row(form);
    ModifyTimeGroupItem(&sent);
    read_rules();
    compare(find_time_group(sent.id), &sent);
}

/* A rule of any kind whose group has gone has no times. They are counted straight in the file. */
static void need_unused(int id) {
    char sql[512];
    snprintf(sql, sizeof(sql),
             "select count(*) from ("
             "select timecontrol, timegroup_id from filter_url union all "
             "select timecontrol, timegroup_id from filter_mac union all "
             "select timecontrol, timegroup_id from filter_ipport union all "
             "select timecontrol, timegroup_id from qos_rule union all "
             "select timecontrol, timegroup_id from behavior_rule) "
             "where timecontrol = %d and timegroup_id = %d;",
             ROUTERDB_TIME_GROUP, id);
    if (GET_DB_SQL_INT_COUNT_ROUTE(sql) != 0) {
        fail("409 Conflict", "group", "in use");
    }
}

static void remove_row(int id) {
    char condition[32];
    need_unused(id);
    row_condition(id, condition, sizeof(condition));
    DelTimeGroupItem(condition);
    read_rules();
    if (find_time_group(id) != NULL) {
        not_stored();
    }
}

static const void *find(int id) {
    return find_time_group(id);
}

int main(void) {
    static Parameter form[COMMON] = {
        RULE_PARAMETERS(sizeof((TimeGroupItem){0}.name) - 1, LONGEST_MARK),
    };
    return answer_rules(form, COMMON, &(Changes){sizeof(TimeGroupItem), find, add, edit, remove_row});
}
