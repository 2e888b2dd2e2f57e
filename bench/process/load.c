/* Prints the private memory in kilobytes that loading a library adds to a process which has SQLite already: written
   pages, and pages of the file that nobody else maps:

     load LIBRARY */
#include <dlfcn.h>
#include <sqlite3.h>
#include <stdio.h>

struct memory {
    long dirty;
    long clean;
};

static struct memory private_memory(void) {
    struct memory memory = {0, 0};
    FILE *file = fopen("/proc/self/smaps_rollup", "r");
    char line[256];
    while (file != NULL && fgets(line, sizeof(line), file) != NULL) {
        sscanf(line, "Private_Dirty: %ld", &memory.dirty);
        sscanf(line, "Private_Clean: %ld", &memory.clean);
    }
    if (file != NULL) {
        fclose(file);
    }
    return memory;
}

int main(int argc, char **argv) {
    if (argc != 2 || sqlite3_initialize() != SQLITE_OK) {
        return 2;
    }
    private_memory(); /* so that its own memory is there */
    const struct memory before = private_memory();
    if (dlopen(argv[1], RTLD_NOW) == NULL) {
        fprintf(stderr, "load: %s\n", dlerror());
        return 1;
    }
    const struct memory after = private_memory();
    printf("%ld %ld\n", after.dirty - before.dirty, after.clean - before.clean);
    return 0;
}
