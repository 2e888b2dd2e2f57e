/* Prints the private memory in kilobytes that loading a library adds to a process which has SQLite already:

     load LIBRARY */
#include <dlfcn.h>
#include <sqlite3.h>
#include <stdio.h>

static long private_memory(void) {
    FILE *file = fopen("/proc/self/smaps_rollup", "r");
    char line[256];
    long sum = 0;
    while (file != NULL && fgets(line, sizeof(line), file) != NULL) {
        long size = 0;
        if (sscanf(line, "Private_Clean: %ld", &size) == 1 || sscanf(line, "Private_Dirty: %ld", &size) == 1) {
            sum += size;
        }
    }
    if (file != NULL) {
        fclose(file);
    }
    return sum;
}

int main(int argc, char **argv) {
    if (argc != 2 || sqlite3_initialize() != SQLITE_OK) {
        return 2;
    }
    private_memory(); /* so that its own memory is there */
    const long before = private_memory();
    if (dlopen(argv[1], RTLD_NOW) == NULL) {
        fprintf(stderr, "load: %s\n", dlerror());
        return 1;
    }
    printf("%ld\n", private_memory() - before);
    return 0;
}
