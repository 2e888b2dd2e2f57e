// How many records a list takes.
#pragma once

#include <cstddef>

#include "core/call_errno.h"

namespace routerdb {

/// Whether record `index` of a table is to be written to a list that has been handed over without its size. Where the
/// build profile caps lists, one that has no place is a failure, which is logged, and the caller stops there. Otherwise
/// there is always a place: the list is sized for the table.
bool list_takes(std::size_t index, std::size_t capacity, const char *table, CallErrno &call);

}  // namespace routerdb
