#include <routerdb.h>
#include <stdio.h>

int main(void) {
    const int lock = get_db_lock(); /* waits for whoever writes */
    if (lock < 0) {
        return 1;
    }
    printf("nobody writes now\n");
    free_db_lock(lock);
    return 0;
}
