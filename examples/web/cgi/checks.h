/* What values have to be like, before the library sees them: for `accepts` of a parameter. */
#pragma once

int is_number(const char *value);       /* 1 to 9999, digits only */
int is_id(const char *value);           /* 1 to 999999999, digits only */
int is_switch(const char *value);       /* "0" or "1" */
int is_filter(const char *value);       /* "all", "online" or "offline" */
int is_action(const char *value);       /* "add", "edit" or "remove" */
int is_address_part(const char *value); /* digits and dots */
int is_mac_part(const char *value);     /* hexadecimal digits and colons */
int is_address(const char *value);      /* a whole dotted IPv4 address: safe in a shell command */
int is_version(const char *value);      /* 16 hexadecimal digits */
int is_days(const char *value);         /* seven times "0" or "1", Monday first, not all "0" */
int is_hour(const char *value);         /* 00:00 to 23:59 */

/* UTF-8 without control characters and without apostrophes. The library puts a value between apostrophes as it stands:
 * in the exact profile one inside ends the value, and the rest is SQL. The modern one doubles them, so that a program
 * that doubles them itself would store two. One that refuses them is right with both. */
int is_text(const char *value);
int is_name(const char *value);        /* such a text that is more than blanks */
int is_web_address(const char *value); /* printable ASCII, at least one character, without blanks, quotes and \ */

/* What a value that is_number or is_id accepts says. */
int number_in(const char *value);
