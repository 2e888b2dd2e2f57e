#include "tour.h"

#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>

void step(const char *title, const char *what, ...) {
    static int number;
    va_list arguments;
    va_start(arguments, what);
    printf("\n%d. %s\n   ", ++number, title);
    vprintf(what, arguments);
    printf("\n");
    va_end(arguments);
}

void check(int holds, const char *what, ...) {
    va_list arguments;
    va_start(arguments, what);
    printf("   %s ", holds ? "✓" : "✗ NOT SO:");
    vprintf(what, arguments);
    printf("\n");
    va_end(arguments);
    if (!holds) {
        exit(EXIT_FAILURE);
    }
}

void set_weekdays(int32_t *weekday, const char *digits) {
    for (int day = 0; day < 7; day++) {
        weekday[day] = digits[day] - '0';
    }
}

void format_weekdays(char *text, size_t size, const int32_t *weekday) {
    static const char names[7][4] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    size_t length = 0;
    for (int day = 0; day < 7; day++) {
        length += (size_t)snprintf(text + length, size - length, "%s%s", day == 0 ? "" : " ",
                                   weekday[day] ? names[day] : " · ");
    }
}
