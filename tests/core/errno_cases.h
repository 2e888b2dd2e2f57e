// Every function that opens a database, with arguments that it succeeds with.
#pragma once

#include <functional>
#include <vector>

#include "support/named.h"

namespace errno_cases {

enum class Lock : bool { not_taken, taken };

struct Case : support::Named {
    std::function<void()> call;
    Lock lock = Lock::not_taken;
};

std::vector<Case> all();

/// Makes what the functions ask for.
void fill_databases();

/// Takes away what the functions ask for.
void drop_tables();

}  // namespace errno_cases
