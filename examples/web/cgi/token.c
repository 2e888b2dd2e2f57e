/* What the page shows to programs that change or cost something. Pages of other origins can ask for it, but no browser
 * lets them read it. With a login there would be one for each session. */
#include <stdio.h>
#include <stdlib.h>

#include "answer.h"
#include "request.h"

int main(void) {
    const char *token = getenv("PAGE_TOKEN");
    read_request(NULL, 0);
    begin_answer("program", "slow");
    printf("{\"token\":\"%s\"}", token == NULL ? "" : token);
    return end_answer();
}
