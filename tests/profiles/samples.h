// A router with a little of everything, and the calls whose readings a profile may share or remember.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/named.h"

namespace samples {

/// Two access points, two zero-configuration groups, and two of each rule that refer to the same group, host, class and
/// applications.
void fill_databases();

struct Call : support::Named {
    /// @return the call's result and its records as bytes
    std::function<std::string()> make;
    std::size_t writes;              // each on a connection of its own
    std::size_t readings;            // connections for them where each has its own
    std::size_t shared_connections;  // for them where they share one to each database
    std::size_t writes_at_once = 0;  // on one connection with all readings, where the profile registers at once
};

/// All of them. They do not depend on each other.
const std::vector<Call> &calls();

}  // namespace samples
