// The two profiles that the library is built in. Names, records, results, output, messages, locks, sleeps and
// notifications are those of `exact` in both: what `modern` spares is work that only a tracer sees.
#pragma once

namespace routerdb {

/// What a profile spares. Each member is asked where the work is done, and nowhere else.
struct BuildProfile {
    bool spares;

    /// The readings of one call go through one connection instead of a fresh one each.
    bool shares_connection = spares;

    /// What one call has looked up (groups, names, applications, leases) is not looked up again.
    bool remembers_lookups = spares;

    /// A statement whose rows nobody sees is prepared, so that it can fail, and not stepped.
    bool skips_unseen_rows = spares;

    /// Statements that count, or read one column, name what they need instead of all columns.
    bool names_needed_columns = spares;

    /// The totals below the list of access points are one statement instead of four.
    bool merges_totals = spares;

    /// Groups are looked up by one statement with a parameter instead of a statement for each.
    bool binds_ids = spares;

    /// One converter serves all texts of a record.
    bool shares_converter = spares;

    /// A column that holds an integer is read as one instead of through its text.
    bool reads_integers = spares;

    /// Records that arrive whole go straight into the caller's list instead of through a block of their own.
    bool receives_in_place = spares;
};

/// The default: connections, statements, allocations and conversions in the number and order that tracers know.
inline constexpr BuildProfile exact{false};

/// As few of them as the same results take.
inline constexpr BuildProfile modern{true};

/// The profile of this build: ROUTERDB_PROFILE names one of the above.
inline constexpr BuildProfile build_profile = ROUTERDB_PROFILE;

}  // namespace routerdb
