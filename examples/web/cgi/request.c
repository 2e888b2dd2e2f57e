#include "request.h"

#include <arpa/inet.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define DIGITS "0123456789"

static int consists_of(const char *value, const char *characters) {
    return *value != '\0' && value[strspn(value, characters)] == '\0';
}

int number_in(const char *value) {
    return (int)strtol(value, NULL, 10);
}

int is_number(const char *value) {
    return consists_of(value, DIGITS) && strlen(value) <= 4 && number_in(value) > 0;
}

int is_filter(const char *value) {
    return strcmp(value, "all") == 0 || strcmp(value, "online") == 0 || strcmp(value, "offline") == 0;
}

int is_address_part(const char *value) {
    return consists_of(value, DIGITS ".") && strlen(value) <= 15;
}

int is_mac_part(const char *value) {
    return consists_of(value, DIGITS "abcdefABCDEF:") && strlen(value) <= 17;
}

int is_address(const char *value) {
    struct in_addr address;
    return is_address_part(value) && inet_pton(AF_INET, value, &address) == 1;
}

void print_headers(void) {
    fputs("Content-Type: application/json; charset=utf-8\r\nCache-Control: no-store\r\n\r\n", stdout);
}

int finish(void) {
    return fflush(stdout) == 0 && !ferror(stdout) ? EXIT_SUCCESS : EXIT_FAILURE;
}

static _Noreturn void answer(const char *status, const char *subject, const char *text) {
    printf("Status: %s\r\n", status);
    print_headers();
    printf("{\"error\":\"%s: %s\"}\n", subject, text);
    exit(finish());
}

void refuse(const char *subject, const char *text) {
    answer("400 Bad Request", subject, text);
}

static int digit_value(char digit) {
    static const char digits[] = "0123456789abcdef0123456789ABCDEF";
    const char *place = digit == '\0' ? NULL : strchr(digits, digit);
    return place == NULL ? -1 : (int)((place - digits) % 16);
}

/* Decodes one character at *text and moves on. Returns it, or 0 if it is not encoded as it should be. */
static char decode(const char **text) {
    const char character = *(*text)++;
    if (character == '+') {
        return ' ';
    }
    if (character != '%') {
        return character;
    }
    const int high = digit_value(**text);
    const int low = high < 0 ? -1 : digit_value((*text)[1]);
    if (low < 0) {
        return '\0';
    }
    *text += 2;
    return (char)(high * 16 + low);
}

/* Decodes what stands up to `end`. Returns whether it is well encoded, without a NUL in it, and fits. */
static int decode_all(const char *text, const char *end, char *out, size_t size) {
    size_t length = 0;
    while (text < end) {
        const char character = decode(&text);
        if (character == '\0' || text > end || length + 1 >= size) {
            return 0;
        }
        out[length++] = character;
    }
    out[length] = '\0';
    return 1;
}

static Parameter *find(Parameter *parameters, size_t count, const char *name) {
    for (size_t i = 0; i < count; i++) {
        if (strcmp(parameters[i].name, name) == 0) {
            return &parameters[i];
        }
    }
    return NULL;
}

/* Takes one "name=value". Only names of this program come back in messages. */
static void take(const char *text, const char *end, Parameter *parameters, size_t count, unsigned *given) {
    char name[32];
    const char *equals = memchr(text, '=', (size_t)(end - text));
    Parameter *parameter = NULL;
    if (equals != NULL && decode_all(text, equals, name, sizeof(name))) {
        parameter = find(parameters, count, name);
    }
    if (parameter == NULL) {
        refuse("query", "unknown parameter");
    }
    const unsigned bit = 1U << (parameter - parameters);
    if ((*given & bit) != 0) {
        refuse(parameter->name, "given twice");
    }
    *given |= bit;
    if (!decode_all(equals + 1, end, parameter->value, sizeof(parameter->value)) ||
        !parameter->accepts(parameter->value)) {
        refuse(parameter->name, parameter->expected);
    }
}

void read_request(Parameter *parameters, size_t count) {
    const char *method = getenv("REQUEST_METHOD");
    const char *text = getenv("QUERY_STRING");
    unsigned given = 0;
    if (method != NULL && strcmp(method, "GET") != 0 && strcmp(method, "HEAD") != 0) {
        answer("405 Method Not Allowed", "method", "only GET and HEAD are answered");
    }
    while (text != NULL && *text != '\0') {
        const char *end = text + strcspn(text, "&");
        if (end > text) {
            take(text, end, parameters, count, &given);
        }
        text = end + strspn(end, "&");
    }
}
