#include "guard.h"

#include <fcntl.h>
#include <stdlib.h>
#include <string.h>

#include "answer.h"

static const char *variable(const char *name) {
    const char *value = getenv(name);
    return value == NULL ? "" : value;
}

/* A browser says with each POST which page it comes from, and no page can say anything else. (What it says with
 * Sec-Fetch-Site does not come to plain addresses.) */
static int is_own_origin(const char *origin, const char *host) {
    static const char *const schemes[] = {"http://", "https://"};
    for (size_t i = 0; i < sizeof(schemes) / sizeof(schemes[0]); i++) {
        const size_t length = strlen(schemes[i]);
        if (strncmp(origin, schemes[i], length) == 0 && strcmp(origin + length, host) == 0) {
            return *host != '\0';
        }
    }
    return 0;
}

/* Takes as long wherever the two differ. */
static int is_same(const char *text, const char *secret) {
    const size_t length = strlen(secret);
    int difference = strlen(text) != length;
    for (size_t i = 0; i < length && text[i] != '\0'; i++) {
        difference |= text[i] ^ secret[i];
    }
    return difference == 0;
}

void need_own_page(void) {
    const char *token = variable("PAGE_TOKEN");
    if (!is_own_origin(variable("HTTP_ORIGIN"), variable("HTTP_HOST"))) {
        fail("403 Forbidden", "origin", "another page");
    }
    if (strlen(token) < 32 || !is_same(variable("HTTP_X_PAGE_TOKEN"), token)) {
        fail("403 Forbidden", "token", "not that of this server");
    }
}

/* Locks one byte of the file. The lock goes with the program. */
static int lock_byte(int file, int command, off_t byte) {
    struct flock lock = {.l_type = F_WRLCK, .l_whence = SEEK_SET, .l_start = byte, .l_len = 1};
    return fcntl(file, command, &lock) == 0;
}

void take_turn(const char *file, int seats) {
    const int turns = open(file, O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    int seat = 1;
    if (turns < 0) {
        fail("500 Internal Server Error", "program", "out of resources");
    }
    while (seat <= seats && !lock_byte(turns, F_SETLK, seat)) {
        seat++;
    }
    if (seat > seats) {
        fail("503 Service Unavailable", "requests", "too many at once");
    }
    lock_byte(turns, F_SETLKW, 0);
}
