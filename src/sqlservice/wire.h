// What travels between the library and the SQL service, in host byte order.
#pragma once

#include <cstddef>

#include "routerdb.h"

namespace routerdb::wire {

/// A request is the first words of SqlRequest and the text without its terminator, a reply the first words of
/// SqlReply and the data.
inline constexpr std::size_t header_size = 12;

static_assert(offsetof(SqlRequest, table_id) == 0 && offsetof(SqlRequest, operation) == 4);
static_assert(offsetof(SqlRequest, length) == 8 && offsetof(SqlRequest, text) >= header_size);
static_assert(offsetof(SqlReply, word0) == 0 && offsetof(SqlReply, word1) == 4);
static_assert(offsetof(SqlReply, size) == 8 && offsetof(SqlReply, data) >= header_size);

}  // namespace routerdb::wire
