// Who holds the lock file. The kernel names the process of a record lock only: a lock of an open file, which is any
// process's that has that file open, is found where /proc shows what each process has open.
#pragma once

#include <cstdint>

#include "process_facts.h"

namespace ctl {

enum class LockState : std::uint8_t {
    missing,  // there is no lock file
    closed,   // it cannot be opened
    free,
    held
};

struct LockHolder {
    ProcessFacts process;
    bool is_of_open_file;  // rather than of the process, as record locks are
};

struct LockHolders {
    static constexpr unsigned most = 16;

    LockState state;
    int reason;            // errno of what cannot be opened
    bool are_some_hidden;  // a process was met that does not show this user what it has open
    unsigned count;
    LockHolder holders[most];

    /// Looks now.
    static LockHolders find();

    /// Whom to ask when it is held and nobody of them is known.
    const char *why_unknown() const;
};

}  // namespace ctl
