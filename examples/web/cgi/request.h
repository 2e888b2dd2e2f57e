/* What a request asks for: its query string, decoded and checked before anything else is done with it. */
#pragma once

#include <stddef.h>

/* A parameter that a program knows. It is filled with what the query gives. */
typedef struct Parameter {
    const char *name;
    int (*accepts)(const char *value);
    const char *expected; /* what a value has to be, for people */
    char value[32];       /* what it is without one */
} Parameter;

/* Checks, for `accepts`. */
int is_number(const char *value);       /* 1 to 9999, digits only */
int is_filter(const char *value);       /* "all", "online" or "offline" */
int is_address_part(const char *value); /* digits and dots */
int is_mac_part(const char *value);     /* hexadecimal digits and colons */
int is_address(const char *value);      /* a whole dotted IPv4 address: safe in a shell command */

/* What a value that is_number accepts says. */
int number_in(const char *value);

/* Reads the query string into the parameters. A request that is not as it should be is answered here, with status 400
 * or 405 and a JSON object that says why, and the program ends. Standard input is never read. */
void read_request(Parameter *parameters, size_t count);

/* Answers with status 400 and ends the program. Both texts are constants without quotes. */
_Noreturn void refuse(const char *subject, const char *text);

/* The header lines of a JSON answer. They go through the standard output stream, as the library's JSON does. */
void print_headers(void);

/* Sends what is still in the stream.
 * Returns the program's exit status. */
int finish(void);
