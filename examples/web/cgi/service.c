#include "service.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include "answer.h"

static char failure[64];

/* In front of the C library's function: each failed call to the service is reported to the system log, and in the exact
 * profile no other way tells it from an empty table. The same words go to standard error, the web server's log. */
__attribute__((format(printf, 2, 3))) void syslog(int priority, const char *format, ...) {
    va_list arguments;
    (void)priority;
    va_start(arguments, format);
    vsnprintf(failure, sizeof(failure), format, arguments);
    va_end(arguments);
}

void need_service(void) {
    if (strstr(failure, "cannot create") != NULL || strstr(failure, "cannot connect") != NULL) {
        fail("503 Service Unavailable", "service", "away");
    }
    if (*failure != '\0') {
        fail("503 Service Unavailable", "service", "failed");
    }
}
