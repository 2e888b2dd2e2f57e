/* How a program answers: whole and in time, or with the reason why not. */
#pragma once

#define MAIN_DATABASE "/etc/config/systemconf/database/myrouter.db"
#define CATALOGUE "/etc/config/systemconf/database/dpilib.db"

/* Answers {"error":"subject: text"} with a status such as "400 Bad Request", and ends the program. The texts are
 * constants without quotes. */
_Noreturn void fail(const char *status, const char *subject, const char *text);

/* The same with status 400. */
_Noreturn void refuse(const char *subject, const char *text);

/* Ends the program with status 503 if a database is missing or empty: the library would make an empty one and find
 * nothing in it. For the main database the lock file counts too, without which some lists look empty. */
void need_database(const char *path);

/* From here on standard output is kept, since the library prints its messages there too, and the program has five
 * seconds: it is ended then, with whatever it has started, and "subject: text" is the answer. */
void begin_answer(const char *subject, const char *text);

/* Answers with what was printed since begin_answer(), if that is a JSON object from its beginning to its end.
 * Returns the program's exit status. */
int end_answer(void);
