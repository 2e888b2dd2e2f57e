/* The zero-configuration groups, keys included: to be served only to whoever may know them. */
#include <routerdb.h>

#include "answer.h"
#include "request.h"

int main(void) {
    read_request(NULL, 0);
    need_database(MAIN_DATABASE);
    begin_answer("database", "busy");
    GetWlanZeroCfgGroupList();
    return end_answer();
}
