// Readings of one call that fail. Where they share a connection, what fails on it is tried on one of its own, and it
// takes one failure more for the same outcome.
#pragma once

#include <sqlite3.h>

#include "support/profile.h"
#include "support/recorder.h"

namespace support {

/// The next `count` calls of a function are made.
inline void let_pass(Recorder &recorder, const char *function, int count) {
    for (int i = 0; i < count; ++i) {
        recorder.answer(function, {Recorder::really});
    }
}

/// The n-th reading of a call, which has others before it, cannot open its database.
inline void fail_opening(Recorder &recorder, int n, int code = SQLITE_CANTOPEN) {
    if (build_profile.shares_connection) {
        let_pass(recorder, "sqlite3_open", 1);
        let_pass(recorder, "sqlite3_prepare_v2", n - 1);
        recorder.answer("sqlite3_prepare_v2", {SQLITE_ERROR});
    } else {
        let_pass(recorder, "sqlite3_open", n - 1);
    }
    recorder.answer("sqlite3_open", {code});
}

/// The n-th call of "sqlite3_prepare_v2" or "sqlite3_step", with which a reading behind others begins, fails.
inline void fail_beginning(Recorder &recorder, const char *function, int n, int code) {
    let_pass(recorder, function, n - 1);
    recorder.answer(function, {code});
    if (build_profile.shares_connection) {
        recorder.answer(function, {code});
    }
}

}  // namespace support
