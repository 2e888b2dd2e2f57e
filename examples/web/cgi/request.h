/* What a request asks for: its query string or its form, decoded and checked before anything else is done with it. */
#pragma once

#include <stddef.h>

/* A parameter that a program knows. It is filled with what the request gives. */
typedef struct Parameter {
    const char *name;
    int (*accepts)(const char *value); /* one of checks.h */
    const char *expected;              /* what a value has to be, for people */
    char value[1040];                  /* what it is without one; the longest text of a record fits */
    size_t longest;                    /* bytes that its place in a record takes; 0 if `accepts` says it all */
} Parameter;

/* Whether something is to be done, not only told. */
int is_change(void);

/* Reads the query string into the parameters. A request that is not as it should be is answered here, with status 400
 * or 405 and a JSON object that says why, and the program ends. Standard input is not read. */
void read_request(Parameter *parameters, size_t count);

/* The same with the form that the page sends. Others than the page are refused first; see guard.h. Standard input is
 * read to its end, before the library is called, whose functions may close it. */
void read_form(Parameter *parameters, size_t count);
