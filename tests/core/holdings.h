// What a call holds, and from when to when.
#pragma once

#include <pthread.h>

#include <string>
#include <vector>

#include "routerdb.h"
#include "support/database.h"
#include "support/recorder.h"

/// Whether a thread could take db_mutex now.
inline bool mutex_is_free() {
    const bool free = pthread_mutex_trylock(&db_mutex) == 0;
    if (free) {
        pthread_mutex_unlock(&db_mutex);
    }
    return free;
}

/// db_mutex and the write lock on the lock file, looked at before each call that the library makes.
class Holdings {
public:
    explicit Holdings(support::Recorder &recorder) {
        recorder.watch([this](const std::string &line) { look(line); });
    }

    /// What is held now.
    static std::string held() {
        const bool mutex = !mutex_is_free();
        const bool lock = !support::lock_file_is_free();
        return mutex && lock ? "mutex and lock" : mutex ? "mutex" : lock ? "lock" : "nothing";
    }

    /// Each change, as "<the first call that is made so>: <what is held>", up to now.
    std::vector<std::string> changes() {
        look("afterwards");
        return changes_;
    }

private:
    void look(const std::string &line) {
        const std::string now = held();
        if (now != before_) {
            changes_.push_back(line + ": " + now);
            before_ = now;
        }
    }

    std::string before_ = "nothing";
    std::vector<std::string> changes_;
};
