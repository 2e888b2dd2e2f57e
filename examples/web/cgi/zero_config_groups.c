/* The zero-configuration groups, keys included: to be served only to whoever may know them. */
#include <routerdb.h>

#include "request.h"

int main(void) {
    read_request(NULL, 0);
    print_headers();
    GetWlanZeroCfgGroupList();
    return finish();
}
