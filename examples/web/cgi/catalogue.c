/* The application catalogue: all classes, or the applications of one:
 *
 *   class=N
 *
 * The library's functions close standard input. A program that wants its input reads it before it calls them; this one
 * has no use for it. */
#include <routerdb.h>

#include "answer.h"
#include "checks.h"
#include "request.h"

int main(void) {
    Parameter parameters[] = {{"class", is_number, "a number from 1 to 9999", "", 0}};
    read_request(parameters, 1);
    need_database(CATALOGUE);
    begin_answer("database", "busy");
    if (*parameters[0].value == '\0') {
        GetAppClassItemList();
    } else {
        GetAppInfoItemListByClassid(parameters[0].value);
    }
    return end_answer();
}
