// The two profiles that the library is built in. Names, records, results, output, messages, locks, sleeps and
// notifications are those of `exact` in both: what `modern` spares is work that nobody sees but a tracer.
#pragma once

namespace routerdb {

struct BuildProfile {
    /// Lookups and counts inside one call read through one connection instead of a fresh one for each statement.
    bool shares_reading_connection;
};

/// The default: connections, statements, allocations and conversions in number and order as tracers know them.
inline constexpr BuildProfile exact{
    false,
};

/// As few of them as the same results take.
inline constexpr BuildProfile modern{
    true,
};

/// The profile of this build: ROUTERDB_PROFILE names one of the above.
inline constexpr BuildProfile build_profile = ROUTERDB_PROFILE;

}  // namespace routerdb
