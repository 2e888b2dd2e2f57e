#include "core/reading.h"

namespace routerdb {

bool Reading::prepare(const char *sql) {
    const int code = access_.prepare(statement_, sql);
    if (code != SQLITE_OK && !access_.lost()) {
        report(profile_.prepare_failure, {nullptr, code, sqlite3_errmsg(access_.db())});
    }
    return code == SQLITE_OK;
}

Reading::Closed Reading::close() {
    statement_.finalize();
    const int connection = access_.close_connection();
    return {connection, access_.release_lock()};
}

}  // namespace routerdb
