// The update statements of access points.
#pragma once

#include <cstdint>

#include "routerdb.h"
#include "text/text.h"

namespace routerdb {

/// Which statement writes what an access point reports.
enum class Report : std::uint8_t {
    of_new,    // it starts online, without a group
    of_known,  // it starts online and keeps its group
    saved,     // nothing but the record
};

/// Room that a report takes unless its values are full of apostrophes.
inline constexpr std::size_t report_size = 81920;

/// "update DevInfo set ... where Dev_MAC='...';"
void append_report(Text &sql, Report report, const DevInfo &device);

/// "update DevInfo set ... where Dev_Sn='...'  ;": what a group or the web interface configures.
void append_configuration(Text &sql, const DevInfo &device);

}  // namespace routerdb
