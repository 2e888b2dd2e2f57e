#include "core/list_room.h"

#include <syslog.h>

namespace routerdb {

bool list_takes(std::size_t index, std::size_t capacity, const char *table, CallErrno &call) {
    if (index < capacity || !build_profile.caps_lists) {
        return true;
    }
    syslog(LOG_ERR, "%s has more rows than a list of %zu takes, the rest is left out\n", table, capacity);
    call.fail(EOVERFLOW);
    return false;
}

}  // namespace routerdb
