// From a row of one of the three tables to a DevInfo record.
#pragma once

#include <cstdint>

#include "core/row.h"
#include "routerdb.h"

namespace routerdb {

enum class Ssids : std::uint8_t {
    as_stored,
    in_gb2312,  // but those of the first network of each radio, and those that cannot be converted
};

/// Reads a row of `DevInfo` over what the record held; what is no column stays.
void read_device(const Row &row, Ssids ssids, DevInfo &device);

/// Reads a row of `WlanGroupInfo` over what the record held.
void read_group(const Row &row, Ssids ssids, DevInfo &group);

/// Reads a row of `WlanZeroCfgGroupInfo` over what the record held.
void read_zero_config_group(const Row &row, Ssids ssids, DevInfo &group);

}  // namespace routerdb
