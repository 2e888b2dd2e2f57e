// Identifier lists such as "3#7#12" and the conditions made of them.
#pragma once

#include <cstddef>

namespace routerdb {

/// Reads the identifiers of a list and overwrites its separators.
/// @param ids  room for ROUTERDB_MAX_IDS numbers
/// @return how many were stored
int read_ids(char *text, int *ids);

/// Appends the condition that one of a list's identifiers matches.
/// @param size  of the whole buffer `out`
void append_id_condition(char *text, char *out, std::size_t size, int column);

}  // namespace routerdb
