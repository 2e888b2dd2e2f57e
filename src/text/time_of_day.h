// Times of day written HH:MM.
#pragma once

namespace routerdb {

/// The digits at places 0, 1, 3 and 4 as one number, 745 for "07:45".
int time_of_day(const char *hhmm);

}  // namespace routerdb
