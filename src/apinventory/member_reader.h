// From a row of one of the three tables to a DevInfo record.
#pragma once

#include <cstdint>

#include "apinventory/parts.h"
#include "core/row.h"

namespace routerdb {

enum class Ssids : std::uint8_t {
    as_stored,
    in_gb2312,  // but those of the first network of each radio, and those that cannot be converted
};

/// Reads a row of a table over what the record held; what is no column stays.
void read_members(const Row &row, Table table, Ssids ssids, DevInfo &record);

}  // namespace routerdb
