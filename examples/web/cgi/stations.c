/* The stations of an access point:
 *
 *   ap=ADDRESS
 *
 * A request starts programs and writes what is in memory to disk: only the page may make one, and few at once. */
#include <routerdb.h>

#include "answer.h"
#include "checks.h"
#include "guard.h"
#include "request.h"

enum { AT_ONCE = 4 };

int main(void) {
    Parameter parameters[] = {{"ap", is_address, "the address of an access point, such as 192.168.1.2", "", 0}};
    read_form(parameters, 1);
    if (*parameters[0].value == '\0') {
        refuse("ap", "missing");
    }
    begin_answer("access point", "slow");
    take_turn("/var/stations.lock", AT_ONCE); /* the library's calls share ten files: one request at a time */
    GetApDevStaList(parameters[0].value);
    return end_answer();
}
