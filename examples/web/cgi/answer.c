#include "answer.h"

#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#define LOCK_FILE "/var/databaselock"
#define HEADERS "Content-Type: application/json; charset=utf-8\r\nCache-Control: no-store\r\n\r\n"
#define FAILURE "Status: %s\r\n" HEADERS "{\"error\":\"%s: %s\"}\n"

enum { SECONDS_TO_ANSWER = 5 };

static int to_browser = -1; /* standard output as it was, while it is kept */
static int kept = -1;       /* a file in memory with what has been printed */
static char late_answer[256];

/* Once in time: from the end of the wait on nothing else is answered. */
static void stop_keeping(void) {
    alarm(0);
    fflush(stdout);
    if (to_browser >= 0) {
        dup2(to_browser, STDOUT_FILENO);
    }
}

static int finish(void) {
    return fflush(stdout) == 0 && !ferror(stdout) ? EXIT_SUCCESS : EXIT_FAILURE;
}

void fail(const char *status, const char *subject, const char *text) {
    stop_keeping();
    printf(FAILURE, status, subject, text);
    exit(finish());
}

void refuse(const char *subject, const char *text) {
    fail("400 Bad Request", subject, text);
}

void need_database(const char *path) {
    struct stat file;
    if (stat(path, &file) != 0 || file.st_size == 0 || access(path, R_OK) != 0) {
        fail("503 Service Unavailable", "database", "away");
    }
    if (strcmp(path, MAIN_DATABASE) == 0 && access(LOCK_FILE, F_OK) != 0) {
        fail("503 Service Unavailable", "database", "without its lock file");
    }
}

/* Ends the program and what it has started: its whole group, this handler's own process aside. */
static void end_now(int signal_number) {
    ssize_t written = 0;
    signal(SIGTERM, SIG_IGN);
    kill(0, SIGTERM);
    if (signal_number == SIGALRM) {
        written = write(to_browser, late_answer, strlen(late_answer));
    }
    _exit(written >= 0 ? EXIT_SUCCESS : EXIT_FAILURE);
}

void begin_answer(const char *subject, const char *text) {
    snprintf(late_answer, sizeof(late_answer), FAILURE, "503 Service Unavailable", subject, text);
    fflush(stdout);
    to_browser = dup(STDOUT_FILENO);
    kept = memfd_create("answer", MFD_CLOEXEC);
    if (to_browser < 0 || kept < 0 || dup2(kept, STDOUT_FILENO) < 0 || setpgid(0, 0) != 0) {
        fail("500 Internal Server Error", "program", "out of resources");
    }
    signal(SIGALRM, end_now);
    signal(SIGTERM, end_now);
    alarm(SECONDS_TO_ANSWER);
}

/* Messages stand in front of an object, and one that could not be read to its end is not closed. */
static int is_whole(const char *text, size_t length) {
    while (length > 0 && text[length - 1] == '\n') {
        length--;
    }
    return length > 1 && text[0] == '{' && text[length - 1] == '}';
}

int end_answer(void) {
    struct stat file;
    stop_keeping();
    if (fstat(kept, &file) != 0 || file.st_size == 0) {
        fail("500 Internal Server Error", "database", "unreadable");
    }
    const size_t length = (size_t)file.st_size;
    const char *text = mmap(NULL, length, PROT_READ, MAP_SHARED, kept, 0);
    if (text == MAP_FAILED || !is_whole(text, length)) {
        fail("500 Internal Server Error", "database", "unreadable");
    }
    fputs(HEADERS, stdout);
    fwrite(text, 1, length, stdout);
    return finish();
}
