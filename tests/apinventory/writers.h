// The functions that write a record of an access point, called alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apinventory/tables.h"
#include "support/named.h"

namespace writers {

struct Writer : support::Named {
    std::function<int(const DevInfo &)> write{};  // 0 when there is no result
    bool takes_new = false;                       // the row need not exist
    bool converts = true;                         // SSIDs from GB2312

    /// The statement for the sample, with a count of networks and so many networks written.
    std::function<std::string(const std::string &wlan_count, int wlans)> statement{};

    /// Columns of the row that it leaves as they were, and those that it sets to texts of its own.
    std::vector<int> left{};
    tables::Row set{};
};

std::vector<Writer> all();

/// Makes the table what the writer expects for a record: empty, or a row that has its MAC address and serial number and
/// "old" everywhere else.
void prepare(const Writer &writer, const DevInfo &device);

/// The row that becomes of it, unless the record's texts are changed on the way.
tables::Row written(const Writer &writer, const DevInfo &device);

/// The one row of the table.
tables::Row only_row();

}  // namespace writers
