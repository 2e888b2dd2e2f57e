/* The URL filters, with the time groups that they follow. A GET lists both; the page's form changes one filter, and is
 * answered with the lists as they are then:
 *
 *   action=WHAT            "add", "edit" or "remove"
 *   id=N, version=TEXT     the row to edit or remove, as the list gave them
 *   name, url, mark=TEXT   what people call it, the address, a remark
 *   status=N               1 if it applies, else 0
 *   group=N                the time group it follows, or
 *   days, from, to=TEXT    times of its own: "1111100", "20:30", "23:59" */
#include <string.h>

#include "answer.h"
#include "rules.h"

enum { URL = COMMON, STATUS, GROUP, COUNT };

/* What the form says, as a record. */
static UrlFilterItem sent_row(const Parameter *form) {
    UrlFilterItem row = {0};
    if (*form[NAME].value == '\0' || *form[URL].value == '\0' || *form[STATUS].value == '\0') {
        refuse("form", "name, url and status are needed");
    }
    row.id = number_in(form[ID].value);
    row.status = number_in(form[STATUS].value);
    row.timegroup_id = number_in(form[GROUP].value);
    row.timecontrol = row.timegroup_id == 0 ? ROUTERDB_TIME_OWN : ROUTERDB_TIME_GROUP;
    copy_value(row.name, sizeof(row.name), &form[NAME]);
    copy_value(row.url, sizeof(row.url), &form[URL]);
    copy_value(row.mark, sizeof(row.mark), &form[MARK]);
    if (row.timecontrol == ROUTERDB_TIME_OWN) {
        copy_times(form, row.weekday, row.start_time, row.end_time);
    } else if (find_time_group(row.timegroup_id) == NULL) {
        fail("409 Conflict", "group", "gone");
    }
    return row;
}

static int has_same_times(const UrlFilterItem *row, const UrlFilterItem *sent) {
    return row->timecontrol == ROUTERDB_TIME_GROUP ||
           (memcmp(row->weekday, sent->weekday, sizeof(row->weekday)) == 0 &&
            strcmp(row->start_time, sent->start_time) == 0 && strcmp(row->end_time, sent->end_time) == 0);
}

/* Whether the row that was read back is the one that was sent. */
static void compare(const UrlFilterItem *row, const UrlFilterItem *sent) {
    if (row == NULL || strcmp(row->name, sent->name) != 0 || strcmp(row->url, sent->url) != 0 ||
        strcmp(row->mark, sent->mark) != 0 || row->status != sent->status || row->timecontrol != sent->timecontrol ||
        row->timegroup_id != sent->timegroup_id || !has_same_times(row, sent)) {
        not_stored();
    }
}

/* The table chooses the id: a higher one than all before. */
static void add(const Parameter *form) {
    const UrlFilterItem sent = sent_row(form);
    const uint32_t count = url_filters.count;
    const int last = count == 0 ? 0 : url_filters.items[count - 1].id;
    need_room(count);
    AddUrlFilterItem(&sent);
    read_rules();
    const UrlFilterItem *row = url_filters.count == 0 ? NULL : &url_filters.items[url_filters.count - 1];
    compare(row != NULL && row->id > last ? row : NULL, &sent);
}

static void edit(const Parameter *form) {
    const UrlFilterItem sent = sent_row(form);
    ModifyUrlFilterItem(&sent);
    read_rules();
    compare(find_url_filter(sent.id), &sent);
}

static void remove_row(int id) {
    char condition[32];
    row_condition(id, condition, sizeof(condition));
    DelUrlFilterItem(condition);
    read_rules();
    if (find_url_filter(id) != NULL) {
        not_stored();
    }
}

static const void *find(int id) {
    return find_url_filter(id);
}

int main(void) {
    static Parameter form[COUNT] = {
        RULE_PARAMETERS(sizeof((UrlFilterItem){0}.name) - 1, sizeof((UrlFilterItem){0}.mark) - 1),
        [URL] = {"url", is_web_address, "1 to 1029 characters without blanks and quotation marks", "",
                 sizeof((UrlFilterItem){0}.url) - 1},
        [STATUS] = {"status", is_switch, "0 or 1", "", 0},
        [GROUP] = {"group", is_id, "the number of a time group", "", 0},
    };
    return answer_rules(form, COUNT, &(Changes){sizeof(UrlFilterItem), find, add, edit, remove_row});
}
