/* Who may ask for what costs or changes something, and how many at once. */
#pragma once

/* Answers 403 and ends the program unless the request comes from the page that this server has given out: the browser
 * names that page's origin, and the page the token. */
void need_own_page(void);

/* Answers 503 and ends the program if `seats` others have taken a turn with this file; else waits until it is this
 * program's turn, which ends with the program. */
void take_turn(const char *file, int seats);
