// The connection that the readings of one call go through.
#pragma once

#include "core/build_profile.h"
#include "core/connection.h"

namespace routerdb {

/// Handed from reading to reading: the first one opens it, and it is closed when the call ends. Writes never use it: a
/// write opens its own connection after it has the lock, or it could go to a file that a reset has just replaced.
template <bool shares>
class ConnectionOfCall {
public:
    /// One reading's use of it.
    class Loan {
    public:
        /// @param call  null for a reading with a connection of its own
        explicit Loan(ConnectionOfCall *call) : call_(call) {}

        /// @return whether there was one to lend; otherwise, and the second time, the reading opens one
        bool take(Connection &reading) {
            replaced_ = taken_;
            taken_ = call_ != nullptr && !replaced_ && call_->connection_.handle() != nullptr;
            if (taken_) {
                reading.adopt(call_->connection_);
            }
            return taken_;
        }

        bool taken() const { return taken_; }

        /// The reading's connection is of no use to others.
        void keep() { call_ = nullptr; }

        /// Whether one was taken, given up, and could not be replaced.
        bool lost() const { return replaced_ && call_ == nullptr; }

        /// Ends the use.
        /// @return as closing the connection
        int give_back(Connection &reading) {
            if (call_ == nullptr) {
                return reading.close();
            }
            if (reading.handle() != nullptr) {
                call_->connection_.adopt(reading);
            }
            return SQLITE_OK;
        }

    private:
        ConnectionOfCall *call_;
        bool taken_ = false;
        bool replaced_ = false;
    };

private:
    Connection connection_;
};

/// Where nothing is shared, each reading opens its own.
template <>
class ConnectionOfCall<false> {
public:
    class Loan {
    public:
        explicit Loan(ConnectionOfCall * /*call*/) {}
        static bool take(Connection & /*reading*/) { return false; }
        static bool taken() { return false; }
        static void keep() {}
        static bool lost() { return false; }
        static int give_back(Connection &reading) { return reading.close(); }
    };
};

using SharedConnection = ConnectionOfCall<build_profile.shares_connection>;

}  // namespace routerdb
