#include "text/time_of_day.h"

#include <cstdlib>
#include <cstring>

namespace routerdb {

int time_of_day(const char *hhmm) {
    constexpr unsigned char places[] = {0, 1, 3, 4};
    const std::size_t length = strnlen(hhmm, 5);
    char digits[sizeof(places) + 1] = {};
    for (std::size_t i = 0; i < sizeof(places) && places[i] < length; ++i) {
        digits[i] = hhmm[places[i]];
    }
    return std::atoi(digits);  // NOLINT(cert-err34-c): reading stops at the first character that is not a digit
}

}  // namespace routerdb
