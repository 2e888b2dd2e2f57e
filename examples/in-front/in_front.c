// Functions of a program's own in front of the library's calls: this one sees how long the library waits for a busy
// database, ends the wait itself, and keeps the library's messages out of the system log.
#include <routerdb.h>
#include <sqlite3.h>
#include <stdarg.h>
#include <stdio.h>
#include <time.h>

static sqlite3 *occupant;  // keeps the database busy
static int waits;

int usleep(unsigned microseconds) {
    const struct timespec pause = {0, (long)microseconds * 1000};
    printf("The library waits %u microseconds.\n", microseconds);
    if (++waits == 3) {
        sqlite3_exec(occupant, "rollback;", NULL, NULL, NULL);
    }
    return nanosleep(&pause, NULL);
}

__attribute__((format(printf, 2, 3))) void syslog(int priority, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    printf("The library reports at level %d: ", priority);
    vprintf(format, arguments);
    va_end(arguments);
}

int main(void) {
    unsigned long rules = 99;
    sqlite3_open("/etc/config/systemconf/database/myrouter.db", &occupant);
    sqlite3_exec(occupant, "begin exclusive;", NULL, NULL, NULL);
    DB_EXEC_SQL_CHAR_LONG("select count(*) from filter_url;", &rules);
    printf("Counted %lu rules.\n", rules);
    DB_EXEC_SQL_CHAR_LONG("select count(*) from no_such_table;", &rules);
    return sqlite3_close(occupant);
}
