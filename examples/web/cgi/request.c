#include "request.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "answer.h"
#include "guard.h"

enum { LONGEST_FORM = 8192 };

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
        (parameter->longest != 0 && strlen(parameter->value) > parameter->longest) ||
        !parameter->accepts(parameter->value)) {
        refuse(parameter->name, parameter->expected);
    }
}

static void read_pairs(const char *text, Parameter *parameters, size_t count) {
    unsigned given = 0;
    while (*text != '\0') {
        const char *end = text + strcspn(text, "&");
        if (end > text) {
            take(text, end, parameters, count, &given);
        }
        text = end + strspn(end, "&");
    }
}

static int is_method(const char *name) {
    const char *method = getenv("REQUEST_METHOD");
    return strcmp(method == NULL ? "GET" : method, name) == 0;
}

int is_change(void) {
    return is_method("POST");
}

void read_request(Parameter *parameters, size_t count) {
    const char *text = getenv("QUERY_STRING");
    if (!is_method("GET") && !is_method("HEAD")) {
        fail("405 Method Not Allowed", "method", "only GET and HEAD are answered");
    }
    read_pairs(text == NULL ? "" : text, parameters, count);
}

void read_form(Parameter *parameters, size_t count) {
    char form[LONGEST_FORM + 1];
    if (!is_method("POST")) {
        fail("405 Method Not Allowed", "method", "only POST is answered");
    }
    need_own_page();
    const size_t length = fread(form, 1, sizeof(form), stdin);
    if (length > LONGEST_FORM || memchr(form, '\0', length) != NULL) {
        refuse("form", "longer than any, or no text");
    }
    form[length] = '\0';
    read_pairs(form, parameters, count);
}
