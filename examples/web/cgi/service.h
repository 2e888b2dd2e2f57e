/* What became of the last question to the SQL service, in either profile of the library. */
#pragma once

/* Answers 503 and ends the program if a call to the service has failed since the program began. */
void need_service(void);
