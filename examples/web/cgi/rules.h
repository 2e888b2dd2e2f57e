/* URL filters and time groups: reading them, and what their changes have in common. */
#pragma once

#include <routerdb.h>
#include <stddef.h>

#include "checks.h"
#include "request.h"

/* The parameters that forms of both have, in front of their own. */
enum { ACTION, ID, VERSION, NAME, MARK, DAYS, FROM, TO, COMMON };

#define RULE_PARAMETERS(longest_name, longest_mark)                                        \
    [ACTION] = {"action", is_action, "add, edit or remove", "", 0},                        \
    [ID] = {"id", is_id, "a number from 1 to 999999999", "", 0},                           \
    [VERSION] = {"version", is_version, "16 hexadecimal digits", "", 0},                   \
    [NAME] = {"name", is_name, "a text that fits, without apostrophes", "", longest_name}, \
    [MARK] = {"mark", is_text, "a text that fits, without apostrophes", "", longest_mark}, \
    [DAYS] = {"days", is_days, "seven times 0 or 1, not all 0", "", 0},                    \
    [FROM] = {"from", is_hour, "00:00 to 23:59", "", 0}, [TO] = {"to", is_hour, "00:00 to 23:59", "", 0}

/* Both lists. They are large: one of each in a program. */
extern UrlFilterItemList url_filters;
extern TimeGroupItemList time_groups;

/* How rows of a kind are changed, each with the lists as they are read. What cannot be done ends the program. */
typedef struct Changes {
    size_t size; /* of a record */
    const void *(*find)(int id);
    void (*add)(const Parameter *form);
    void (*edit)(const Parameter *form);
    void (*remove)(int id);
} Changes;

/* Answers a request: with both lists, or, to the page's form, with what they are after the change. One change at a
 * time, among these programs; what another program changes in the same moment shows in the lists. An edit or a removal
 * gets as far as `changes` if the row is what the page showed. */
int answer_rules(Parameter *form, size_t count, const Changes *changes);

/* Reads both lists through the SQL service, or answers 503 and ends the program. */
void read_rules(void);

/* Those of the lists with this id; NULL if there is none. */
const UrlFilterItem *find_url_filter(int id);
const TimeGroupItem *find_time_group(int id);

/* Answers 409 and ends the program if a list has as many rows as fit a list. */
void need_room(uint32_t count);

/* Answers 500 and ends the program: what is there is not what was sent. */
_Noreturn void not_stored(void);

/* Copies a value to a text of a record, where it fits. */
void copy_value(char *text, size_t size, const Parameter *parameter);

/* Copies the times of the form to a record, whose hours have 20 bytes each, or refuses them. */
void copy_times(const Parameter *form, int32_t *days, char *from, char *to);

/* Makes the condition that means this row alone. */
void row_condition(int id, char *condition, unsigned size);
