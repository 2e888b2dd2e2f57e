// From a request to its reply.
#pragma once

#include <cstddef>

#include "client.h"
#include "settings.h"

namespace sqld {

enum class Outcome : unsigned char { answered, refused };

/// Does what a request asks and sends the reply. What cannot be answered is refused: a reply without data would read as
/// an empty table.
/// @param on_wait  called when the client does not take its reply at once
Outcome answer(int fd, Request &request, const Settings &settings, OnWait on_wait, void *context);

/// Bytes of the longest list that is answered.
std::size_t longest_list(const Settings &settings);

}  // namespace sqld
