#include "core/connection.h"

#include "build_profile.h"
#include "core/kept_connection.h"
#include "core/paths.h"
#include "core/retry.h"

namespace routerdb {

const char *path_of(Database database) {
    return database == Database::main ? paths::main_database : paths::catalogue_database;
}

int Connection::open(Database database, Backoff &backoff) {
    return retry_while_busy(backoff, handle_, [&] {
        close();  // a failed open may leave a handle behind, which the next attempt would overwrite
        return sqlite3_open(path_of(database), &handle_);
    });
}

int Connection::open_file(const char *path, int flags) {
    close();
    return sqlite3_open_v2(path, &handle_, flags, nullptr);
}

void Connection::adopt(Connection &other) {
    take(other.handle_);
    other.handle_ = nullptr;
}

int Connection::close() {
    if (handle_ == nullptr) {
        return SQLITE_OK;
    }
    const bool taken_back = build_profile.keeps_connection && kept_connection::take_back(handle_);
    const int code = taken_back ? SQLITE_OK : sqlite3_close(handle_);
    handle_ = nullptr;
    return code;
}

}  // namespace routerdb
