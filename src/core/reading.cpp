#include "core/reading.h"

namespace routerdb {

Start Reading::start(const char *sql, const char *narrow) {
    const bool narrows = build_profile.names_needed_columns && narrow != nullptr;
    if (!access_.take_guard()) {
        return Start::not_opened;
    }
    if (start_on_shared(narrows ? narrow : sql)) {
        return Start::ready;
    }
    if (!access_.open_database()) {
        return Start::not_opened;
    }
    if (narrows && start_silently(narrow)) {
        return Start::ready;
    }
    const int code = statement_.prepare(access_.db(), sql, access_.backoff());
    if (code != SQLITE_OK) {
        report(profile_.not_prepared, {nullptr, code, sqlite3_errmsg(access_.db())});
        return Start::not_prepared;
    }
    return Start::ready;
}

/// Starts on the connection of earlier readings. It remembers tables: that they are still there shows at the first step
/// only. What fails there is tried on a connection of its own.
bool Reading::start_on_shared(const char *sql) {
    if (shared() == nullptr || !shared()->lend(access_.connection())) {
        return false;
    }
    if (!start_silently(sql)) {
        access_.close_connection();
        return false;
    }
    return true;
}

/// Prepares a query that another stands in for when it fails, and takes its first step, which may fail as well.
bool Reading::start_silently(const char *sql) {
    if (statement_.prepare(access_.db(), sql, access_.backoff()) == SQLITE_OK) {
        statement_.first_row(access_.backoff());
    }
    if (!statement_.ended_well()) {
        statement_.finalize();
        return false;
    }
    return true;
}

Reading::Closed Reading::close() {
    statement_.finalize();
    if (shared() != nullptr && access_.is_open()) {
        shared()->take_back(access_.connection());
    }
    const int connection = access_.close_connection();
    return {connection, access_.release_lock()};
}

}  // namespace routerdb
