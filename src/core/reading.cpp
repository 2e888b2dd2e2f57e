#include "core/reading.h"

#include <cstring>

#include "core/kept_connection.h"

namespace routerdb {

Reading::Reading(const ReadProfile &profile, SharedConnection *shared)
    : profile_(profile), shared_(shared), access_(profile.access) {}

Reading::~Reading() {
    close();
}

Start Reading::start(SqlView sql) {
    if (!sql.complete()) {
        call().fail(ENOMEM);
        return Start::not_opened;
    }
    if (!access_.take_guard()) {
        return Start::not_opened;
    }
    if (shared() != nullptr) {
        access_.backoff().patience() = shared()->patience();
    }
    if (start_on_borrowed(sql)) {
        return Start::ready;
    }
    if (!access_.open_database()) {
        return Start::not_opened;
    }
    if (sql.narrow() != nullptr && start_silently(sql.narrow())) {
        return Start::ready;
    }
    if (!statement_.prepare(access_.db(), sql.text(), access_.backoff(), profile_.not_prepared)) {
        call().fail(errno_of(statement_.code()));
        return Start::not_prepared;
    }
    return Start::ready;
}

/// Borrows the connection of earlier readings of the call, or the one that is kept. On that one no text of a caller's
/// runs, nor one with the name of a table that a caller gave: such names stand between double quotes.
bool Reading::borrow(SqlView sql) {
    if (shared() != nullptr && shared()->lend(access_.connection())) {
        return true;
    }
    return build_profile.keeps_connection && (profile_.access.texts == Texts::own || sql.is_own()) &&
           std::strchr(sql.text(), '"') == nullptr &&
           kept_connection::lend(profile_.access.database, access_.connection());
}

/// A borrowed connection remembers tables: that they are still there shows at the first step only. What fails there is
/// tried on a connection of its own.
bool Reading::start_on_borrowed(SqlView sql) {
    if (!borrow(sql)) {
        return false;
    }
    if (!start_pinned(sql.narrow() != nullptr ? sql.narrow() : sql.text())) {
        access_.close_connection();
        return false;
    }
    return true;
}

bool Reading::start_pinned(const char *sql) {
    if (!build_profile.keeps_connection) {
        return start_silently(sql);
    }
    kept_connection::Pin pin(access_.db(), access_.backoff());
    if (!pin.holds()) {
        return false;
    }
    const bool started = start_silently(sql);
    if (!started) {
        pin.give_up();
    }
    return started;
}

/// Prepares a query that another stands in for when it fails, and takes its first step, which may fail as well.
bool Reading::start_silently(const char *sql) {
    ahead_ = statement_.prepare(access_.db(), sql, access_.backoff(), no_message) &&
             (statement_.next_row(access_.backoff()) || statement_.ended_well());
    if (!ahead_) {
        statement_.finalize();
    }
    return ahead_;
}

bool Reading::next_row() {
    if (ahead_) {
        ahead_ = false;
        return statement_.has_row();
    }
    const bool has_row = statement_.next_row(access_.backoff());
    if (!statement_.ended_well()) {
        call().fail(errno_of(statement_.code()));
    }
    return has_row;
}

Reading::Closed Reading::close() {
    statement_.finalize();
    if (shared() != nullptr && access_.is_open()) {
        shared()->patience() = access_.backoff().patience();
        shared()->take_back(access_.connection());
    }
    const int connection = access_.close_connection();
    return {connection, access_.release_lock()};
}

}  // namespace routerdb
