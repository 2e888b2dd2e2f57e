#include "core/call_errno.h"

#include <sqlite3.h>

namespace routerdb {

int errno_of(int sqlite_code) {
    switch (sqlite_code & 0xff) {
        case SQLITE_NOMEM:
            return ENOMEM;
        case SQLITE_FULL:
            return ENOSPC;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return ETIMEDOUT;
        case SQLITE_PERM:
        case SQLITE_READONLY:
            return EACCES;
        case SQLITE_AUTH:
            return EINVAL;
        case SQLITE_TOOBIG:
            return EOVERFLOW;
        default:
            return EIO;
    }
}

}  // namespace routerdb
