// From a request to its reply.
#pragma once

#include "settings.h"

namespace sqld {

/// Serves one connection: reads the request, does what it asks, sends the reply. What cannot be answered is hung up on:
/// a reply without data would read as an empty table. It runs in a process of its own, which ends afterwards: what the
/// library leaves open for a request ends with it.
/// @return whether a reply was delivered
bool answer(int fd, const Settings &settings);

}  // namespace sqld
