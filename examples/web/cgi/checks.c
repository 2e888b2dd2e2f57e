#include "checks.h"

#include <arpa/inet.h>
#include <stddef.h>
#include <stdlib.h>
#include <string.h>

#define DIGITS "0123456789"
#define HEXADECIMAL DIGITS "abcdefABCDEF"

static int consists_of(const char *value, const char *characters) {
    return *value != '\0' && value[strspn(value, characters)] == '\0';
}

static int is_one_of(const char *value, const char *const *words) {
    while (*words != NULL && strcmp(value, *words) != 0) {
        words++;
    }
    return *words != NULL;
}

int number_in(const char *value) {
    return (int)strtol(value, NULL, 10);
}

int is_number(const char *value) {
    return consists_of(value, DIGITS) && strlen(value) <= 4 && number_in(value) > 0;
}

int is_id(const char *value) {
    return consists_of(value, DIGITS) && strlen(value) <= 9 && number_in(value) > 0;
}

int is_switch(const char *value) {
    return is_one_of(value, (const char *const[]){"0", "1", NULL});
}

int is_filter(const char *value) {
    return is_one_of(value, (const char *const[]){"all", "online", "offline", NULL});
}

int is_action(const char *value) {
    return is_one_of(value, (const char *const[]){"add", "edit", "remove", NULL});
}

int is_address_part(const char *value) {
    return consists_of(value, DIGITS ".") && strlen(value) <= 15;
}

int is_mac_part(const char *value) {
    return consists_of(value, HEXADECIMAL ":") && strlen(value) <= 17;
}

int is_address(const char *value) {
    struct in_addr address;
    return is_address_part(value) && inet_pton(AF_INET, value, &address) == 1;
}

int is_version(const char *value) {
    return consists_of(value, HEXADECIMAL) && strlen(value) == 16;
}

int is_days(const char *value) {
    return consists_of(value, "01") && strlen(value) == 7 && strchr(value, '1') != NULL;
}

int is_hour(const char *value) {
    return strlen(value) == 5 && strspn(value, DIGITS) == 2 && value[2] == ':' && strspn(value + 3, DIGITS) == 2 &&
           number_in(value) < 24 && number_in(value + 3) < 60;
}

/* The bytes of the UTF-8 character that begins here; 0 if none does. */
static size_t character_size(const unsigned char *text) {
    static const unsigned smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const size_t size = text[0] < 0x80 ? 1 : text[0] < 0xc0 ? 0 : text[0] < 0xe0 ? 2 : text[0] < 0xf0 ? 3 : 4;
    unsigned code = size < 2 ? text[0] : text[0] & (0x7fU >> size);
    for (size_t i = 1; i < size; i++) {
        if ((text[i] & 0xc0) != 0x80) {
            return 0;
        }
        code = code << 6 | (text[i] & 0x3fU);
    }
    const int is_surrogate = code >= 0xd800 && code < 0xe000;
    return text[0] >= 0xf8 || code < smallest[size] || code > 0x10ffff || is_surrogate ? 0 : size;
}

int is_text(const char *value) {
    const unsigned char *text = (const unsigned char *)value;
    while (*text != '\0') {
        const size_t size = character_size(text);
        if (size == 0 || *text < ' ' || *text == 0x7f || *text == '\'') {
            return 0;
        }
        text += size;
    }
    return 1;
}

int is_name(const char *value) {
    return is_text(value) && value[strspn(value, " ")] != '\0';
}

int is_web_address(const char *value) {
    const char *text = value;
    while (*text > ' ' && *text < 0x7f && strchr("'\"\\", *text) == NULL) {
        text++;
    }
    return *text == '\0' && text > value;
}
