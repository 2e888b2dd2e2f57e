#include <routerdb.h>
#include <stdio.h>

int main(void) {
    if (DB_EXEC_SQL_CHAR("update filter_url set status = 0 where status = 1;") != 0) {
        fprintf(stderr, "nothing was changed\n");
        return 1;
    }
    printf("no rule applies\n");
    return 0;
}
