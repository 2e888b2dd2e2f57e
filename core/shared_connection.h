// The connection that the readings of one call go through.
#pragma once

#include "core/build_profile.h"
#include "core/connection.h"

namespace routerdb {

/// Hands one connection from reading to reading, where the build profile shares it: the first one opens it, and it is
/// closed when the call ends. Writes never use it: a write opens its own connection after it has the lock, or it could
/// go to a file that a reset has just replaced.
class SharedConnection {
public:
    SharedConnection() = default;

    /// Gives the connection to a reading.
    /// @return false if there is none yet: the reading opens one
    bool lend(Connection &reading) {
        reading.adopt(connection_);
        return reading.handle() != nullptr;
    }

    /// Takes the connection of a reading that has ended.
    /// @return as closing it
    int take_back(Connection &reading) {
        if (!build_profile.shares_connection) {
            return reading.close();
        }
        if (reading.handle() != nullptr) {
            connection_.adopt(reading);
        }
        return SQLITE_OK;
    }

private:
    Connection connection_;
};

}  // namespace routerdb
