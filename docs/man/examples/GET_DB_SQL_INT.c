#include <routerdb.h>
#include <stdio.h>

int main(void) {
    const int rules = GET_DB_SQL_INT("select Id from filter_url where status = 1;");
    if (rules < 0) {
        fprintf(stderr, "the database cannot be read\n");
        return 1;
    }
    printf("%d rules apply\n", rules);
    return 0;
}
