#include "rules.h"

#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#include "answer.h"
#include "guard.h"
#include "service.h"

enum { WEEK = 7, HOUR_SIZE = 20, VERSION_SIZE = 17, AT_ONCE = 4 };

UrlFilterItemList url_filters;
TimeGroupItemList time_groups;

void read_rules(void) {
    GetTimeGroupItemList(&time_groups);
    GetUrlFilterItemList(&url_filters);
    need_service();
}

const UrlFilterItem *find_url_filter(int id) {
    for (uint32_t i = 0; i < url_filters.count; i++) {
        if (url_filters.items[i].id == id) {
            return &url_filters.items[i];
        }
    }
    return NULL;
}

const TimeGroupItem *find_time_group(int id) {
    for (uint32_t i = 0; i < time_groups.count; i++) {
        if (time_groups.items[i].id == id) {
            return &time_groups.items[i];
        }
    }
    return NULL;
}

/* What tells two states of a row apart: a hash (FNV-1a) of its record, in which every byte without a meaning is 0. It
 * is there for mistakes, not for attacks: whoever may change rows needs no trick. */
static const char *version_of(char *text, const void *row, size_t size) {
    const unsigned char *bytes = row;
    uint64_t hash = 0xcbf29ce484222325U;
    for (size_t i = 0; i < size; i++) {
        hash = (hash ^ bytes[i]) * 0x100000001b3U;
    }
    snprintf(text, VERSION_SIZE, "%016" PRIx64, hash);
    return text;
}

/* `version` is what the page was given with the row. */
static void need_version(const void *row, size_t size, const char *version) {
    char now[VERSION_SIZE];
    if (row == NULL) {
        fail("409 Conflict", "row", "gone");
    }
    if (strcmp(version_of(now, row, size), version) != 0) {
        fail("409 Conflict", "row", "changed meanwhile");
    }
}

void need_room(uint32_t count) {
    if (count >= ROUTERDB_LIST_CAPACITY) {
        fail("409 Conflict", "rows", "no more fit");
    }
}

void not_stored(void) {
    fail("500 Internal Server Error", "row", "not stored as sent");
}

void copy_value(char *text, size_t size, const Parameter *parameter) {
    const size_t length = strnlen(parameter->value, size - 1);
    memcpy(text, parameter->value, length);
    text[length] = '\0';
}

void copy_times(const Parameter *form, int32_t *days, char *from, char *to) {
    if (*form[DAYS].value == '\0' || *form[FROM].value == '\0' || *form[TO].value == '\0') {
        refuse("form", "days, from and to are needed");
    }
    if (strcmp(form[FROM].value, form[TO].value) >= 0) {
        refuse("to", "later than from");
    }
    for (int i = 0; i < WEEK; i++) {
        days[i] = form[DAYS].value[i] == '1';
    }
    copy_value(from, HOUR_SIZE, &form[FROM]);
    copy_value(to, HOUR_SIZE, &form[TO]);
}

void row_condition(int id, char *condition, unsigned size) {
    char ids[16];
    snprintf(ids, sizeof(ids), "%d", id);
    *condition = '\0';
    generate_db_params(ids, condition, size, ROUTERDB_COLUMN_ID);
}

/* `"key":"value",` with what JSON does not take escaped. */
static void print_text(const char *key, const char *value) {
    printf("\"%s\":\"", key);
    for (; *value != '\0'; value++) {
        const unsigned char character = (unsigned char)*value;
        if (character < ' ') {
            printf("\\u%04x", character);
        } else {
            printf(character == '"' || character == '\\' ? "\\%c" : "%c", character);
        }
    }
    fputs("\",", stdout);
}

static void print_times(const int32_t *days, const char *from, const char *to) {
    char digits[WEEK + 1] = "";
    for (int i = 0; i < WEEK; i++) {
        digits[i] = days[i] == 1 ? '1' : '0';
    }
    print_text("days", digits);
    print_text("from", from);
    print_text("to", to);
}

/* What every row ends with. */
static void print_end(uint32_t *left, int id, const void *row, size_t size) {
    char version[VERSION_SIZE];
    printf("\"id\":%d,\"version\":\"%s\"}%s", id, version_of(version, row, size), --*left == 0 ? "" : ",");
}

static void print_url_filters(void) {
    uint32_t left = url_filters.count;
    for (const UrlFilterItem *row = url_filters.items; left > 0; row++) {
        putchar('{');
        print_text("name", row->name);
        print_text("url", row->url);
        print_times(row->weekday, row->start_time, row->end_time);
        print_text("mark", row->mark);
        printf("\"status\":%d,\"group\":%d,", row->status,
               row->timecontrol == ROUTERDB_TIME_GROUP ? row->timegroup_id : 0);
        print_end(&left, row->id, row, sizeof(*row));
    }
}

static void print_time_groups(void) {
    uint32_t left = time_groups.count;
    for (const TimeGroupItem *row = time_groups.items; left > 0; row++) {
        putchar('{');
        print_text("name", row->name);
        print_times(row->weekday, row->start_time, row->end_time);
        print_text("mark", row->mark);
        print_end(&left, row->id, row, sizeof(*row));
    }
}

static void print_rules(void) {
    fputs("{\"filters\":[", stdout);
    print_url_filters();
    fputs("],\"groups\":[", stdout);
    print_time_groups();
    fputs("]}", stdout);
}

static void change(const Parameter *form, const Changes *changes) {
    const int id = number_in(form[ID].value);
    if (strcmp(form[ACTION].value, "add") == 0) {
        changes->add(form);
        return;
    }
    need_version(changes->find(id), changes->size, form[VERSION].value);
    if (strcmp(form[ACTION].value, "edit") == 0) {
        changes->edit(form);
    } else {
        changes->remove(id);
    }
}

int answer_rules(Parameter *form, size_t count, const Changes *changes) {
    const int is_asked_to_change = is_change();
    if (is_asked_to_change) {
        read_form(form, count);
        if (*form[ACTION].value == '\0') {
            refuse("action", "missing");
        }
    } else {
        read_request(NULL, 0);
    }
    need_database(MAIN_DATABASE);
    begin_answer("service", "slow");
    if (is_asked_to_change) {
        take_turn("/var/rules.lock", AT_ONCE);
    }
    read_rules();
    if (is_asked_to_change) {
        change(form, changes);
    }
    print_rules();
    return end_answer();
}
