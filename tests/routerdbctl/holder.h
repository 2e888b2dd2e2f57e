// Somebody who holds the lock file.
#pragma once

#include <cstdint>

#include "support/process.h"

namespace support {

enum class LockKind : std::uint8_t { of_process, of_open_file };
enum class Visible : std::uint8_t { yes, no };

/// "sleep 1000", with the write lock on the lock file, until the end of the object.
class Holder {
public:
    /// @param visible  whether other processes of this user may see what it has open
    explicit Holder(LockKind kind, Visible visible = Visible::yes);

    pid_t id() const { return process_.id(); }

private:
    Process process_;
};

}  // namespace support
