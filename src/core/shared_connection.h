// The connection that the readings of one call go through.
#pragma once

#include "core/connection.h"

namespace routerdb {

/// Handed from reading to reading: the first one opens it, and it is closed when the call ends. Writes never use it: a
/// write opens its own connection after it has the lock, or it could go to a file that a reset has just replaced.
class SharedConnection {
public:
    /// Hands it to a reading that has none.
    /// @return whether there is one
    [[nodiscard]] bool lend(Connection &reading) {
        reading.adopt(connection_);
        return reading.handle() != nullptr;
    }

    /// Takes it from a reading that is over.
    void take_back(Connection &reading) { connection_.adopt(reading); }

    /// The patience of all readings together.
    CallPatience &patience() { return patience_; }

private:
    CallPatience patience_{};
    Connection connection_;
};

}  // namespace routerdb
