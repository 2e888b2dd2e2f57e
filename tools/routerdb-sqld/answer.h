// From a request to its reply.
#pragma once

namespace sqld {

/// Serves one connection: reads the request, does what it asks, sends the reply. It runs in a process of its own,
/// which ends afterwards: what the library leaves open for a request ends with it.
/// @return whether a reply was delivered
bool answer(int fd);

}  // namespace sqld
