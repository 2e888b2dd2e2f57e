// The two profiles that the library is built in. Names, records, results, output, messages, locks, sleeps and
// notifications are those of `exact` in both: what `modern` spares is work that only a tracer sees.
#pragma once

namespace routerdb {

/// What a profile spares. Each member is asked in one place.
struct BuildProfile {
    /// The readings of one call go through one connection instead of a fresh one each.
    bool shares_connection;

    /// What one call has looked up (groups, names, applications, leases) is not looked up again.
    bool remembers_lookups;

    /// A statement whose rows nobody sees is prepared, so that it can fail, and not stepped.
    bool skips_unseen_rows;

    /// The number of the first zero-configuration group is read by a statement that names its column instead of all.
    bool names_one_column;

    /// The totals below the list of access points are one statement instead of four.
    bool merges_totals;

    /// Groups are looked up by one statement with a parameter instead of a statement for each.
    bool binds_ids;

    /// One converter serves all texts of a record.
    bool shares_converter;

    /// Records that arrive whole go straight into the caller's list instead of through a block of their own.
    bool receives_in_place;
};

/// The default: connections, statements, allocations and conversions in the number and order that tracers know.
inline constexpr BuildProfile exact{false, false, false, false, false, false, false, false};

/// As few of them as the same results take.
inline constexpr BuildProfile modern{true, true, true, true, true, true, true, true};

/// The profile of this build: ROUTERDB_PROFILE names one of the above.
inline constexpr BuildProfile build_profile = ROUTERDB_PROFILE;

}  // namespace routerdb
