#include "core/access.h"

#include "build_profile.h"
#include "core/paths.h"
#include "routerdb.h"

namespace routerdb {

void MutexHold::take() {
    pthread_mutex_lock(&db_mutex);
    taken_ = true;
}

bool MutexHold::try_to_take() {
    taken_ = pthread_mutex_trylock(&db_mutex) == 0;
    return taken_;
}

void MutexHold::release() {
    if (taken_) {
        pthread_mutex_unlock(&db_mutex);
    }
    taken_ = false;
}

bool Access::take_guard() {
    const auto draw = [this] { backoff_ = Backoff(profile_.first_delay, profile_.scale, profile_.busy); };
    if (profile_.guard == Guard::mutex_and_lock_file) {
        mutex_.take();
    }
    if (profile_.draw == Draw::before_opening_lock_file) {
        draw();
    }
    if (profile_.guard != Guard::none && !lock_file_.open()) {
        if (profile_.guard != Guard::lock_file_if_there) {
            call_.fail(errno);
        }
        printed_ = report({profile_.not_locked, Wording::cannot_open}, {paths::lock_file, 0, nullptr});
        if (profile_.guard != Guard::lock_file_if_there) {
            return false;
        }
    }
    if (profile_.draw == Draw::after_opening_lock_file) {
        draw();
    }
    if (profile_.guard != Guard::none) {
        lock();
    }
    return true;
}

/// Waits for the lock file. Where it keeps threads apart nobody waits for it with the mutex in hand, since the thread
/// that has it may need the mutex next, nor for the mutex with the lock file in hand.
void Access::lock() {
    if (!build_profile.locks_threads || profile_.guard != Guard::mutex_and_lock_file) {
        lock_file_.lock();
        return;
    }
    while (!lock_file_.try_to_lock()) {
        mutex_.release();
        lock_file_.lock();
        if (mutex_.try_to_take()) {
            return;
        }
        lock_file_.unlock();
        mutex_.take();
    }
}

bool Access::open_database() {
    code_ = connection_.open(profile_.database, backoff_);
    if (code_ == SQLITE_OK) {
        confine(db(), profile_.texts);
        return true;
    }
    call_.fail(errno_of(code_));
    printed_ = report(profile_.not_opened, {path_of(profile_.database), code_, sqlite3_errmsg(connection_.handle())});
    if (profile_.failed_handle == FailedHandle::abandoned && !build_profile.closes_its_own) {
        connection_.abandon();  // Deliberate: callers that count connections see this one left open.
    }
    return false;
}

}  // namespace routerdb
