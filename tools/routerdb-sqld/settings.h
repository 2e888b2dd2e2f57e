// What the command line sets.
#pragma once

namespace sqld {

struct Settings {
    bool may_change_schema = false;  // a request to execute
    unsigned request_seconds = 8;    // for a request in all, below the ten seconds that clients wait
};

}  // namespace sqld
