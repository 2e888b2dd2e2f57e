// What a call does to the disk, seen from outside.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/disk.h"

namespace support {

/// Runs `action` in a process of its own, which has to be content with it, and traces what this process and the
/// programs that it starts write, remove and sync. Throws what the trace has that it does not understand.
/// @param directories  whose files count
/// @return a disk that was told all of it
Disk trace_disk(const std::vector<std::string> &directories, const std::function<bool()> &action);

}  // namespace support
