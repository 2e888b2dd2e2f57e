#include <routerdb.h>
#include <stdio.h>

int main(void) {
    if (backup_sqlite_db() != 0) {
        fprintf(stderr, "the earlier backup is the last one\n");
        return 1;
    }
    printf("backed up\n");
    return 0;
}
