#include <routerdb.h>
#include <stdio.h>

static TimeGroupItemList groups; /* too large for a stack */

int main(void) {
    const int count = GET_DB_SQL_INT("select id from user_timegroup;");
    if (count < 0 || count > ROUTERDB_LIST_CAPACITY) {
        return 1;
    }
    GetTimeGroupItemList(&groups);
    if (groups.count != (uint32_t)count) {
        fprintf(stderr, "the service does not answer\n");
        return 1;
    }
    for (uint32_t i = 0; i < groups.count; i++) {
        printf("%d %s\n", groups.items[i].id, groups.items[i].name);
    }
    printf("%u groups\n", groups.count);
    return 0;
}
