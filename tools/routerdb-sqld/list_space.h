// Where lists are built.
#pragma once

#include <cstddef>

namespace sqld {

/// Room for lists of up to so many bytes, for as long as the process lives. Behind it lies memory that nobody may
/// touch: what outgrows the room ends this process instead of running into something else.
/// @return the room, which ends right before that memory; null after the reason went to the system log
void *list_space(std::size_t bytes);

/// What list_space() takes of the address space at most.
std::size_t list_space_size(std::size_t bytes);

}  // namespace sqld
