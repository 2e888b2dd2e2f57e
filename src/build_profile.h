// The two profiles that the library is built in. Names, records and sizes are the same. `exact` does everything to the
// letter that programs know. `modern` gives callers who mean well the same results, output, messages, locks and
// notifications with less work, and removes what the letter makes dangerous.
#pragma once

namespace routerdb {

/// What a profile does differently. Each member is asked where the work is done, and nowhere else.
struct BuildProfile {
    // A profile says no more than these two: whether it spares work, and whether it is careful.
    bool spares;
    bool careful;

    /// The readings of one call go through one connection instead of a fresh one each.
    bool shares_connection = spares;

    /// One connection to each database stays open between calls, for reading, with a few statements.
    bool keeps_connection = spares;

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

    /// A registration is one transaction on one connection.
    bool registers_at_once = spares;

    /// Quotes inside a value are doubled in every statement, not only where they always were.
    bool doubles_quotes = careful;

    /// The condition of a deletion compares columns with values, and is refused if it does anything else; a table that
    /// is counted exists.
    bool checks_conditions = careful;

    /// No text of a caller attaches a file or edits the schema, and the schema of a file is not trusted.
    bool confines_texts = careful;

    /// A journal is on disk before it says so of itself: a power loss in between would have it undo with what never
    /// came.
    bool syncs_in_full = careful;

    /// A list takes as many records as it has room for, whatever the database or the service has.
    bool caps_lists = careful;

    /// A service that runs as a stranger is not asked.
    bool checks_service = careful;

    /// A request of which only a part could be sent is a failure.
    bool checks_sends = careful;

    /// A reply that ends early, or is too long, is a failure.
    bool checks_replies = careful;

    /// Ten seconds are for a request and its reply together, instead of for each call.
    bool limits_exchange = careful;

    /// A call that fails says why in errno, and one that does not leaves it alone.
    bool tells_failures = careful;

    /// No address gets into a command but an IPv4 one, and the program that lists stations is started without a shell.
    bool keeps_addresses_from_shell = careful;

    /// Texts in JSON are escaped.
    bool escapes_json = careful;

    /// Streams, handles and converters are closed, and descriptors of the caller's are not.
    bool closes_its_own = careful;

    /// rand(), openlog() and closelog() of the program are left as they are.
    bool leaves_program_state = careful;

    /// What is busy is waited for with a limit.
    bool limits_waiting = careful;

    /// A text of several statements goes on with the one that was busy, instead of from its beginning.
    bool resumes_texts = careful;

    /// The lock file keeps threads apart as well as processes, and a thread that holds it joins it in nested calls.
    bool locks_threads = careful;

    /// Backup, restore and reset copy a checked database through SQLite, instead of any file through a command.
    bool copies_through_sqlite = careful;

    /// The DHCP server's pid file counts only if nobody but the server's owner could write it.
    bool checks_pid_file = careful;
};

/// The default: connections, statements, allocations and conversions in the number and order that tracers know.
inline constexpr BuildProfile exact{false, false};

/// As little work as the same results take, and nothing that a stranger's text can turn against the router.
inline constexpr BuildProfile modern{true, true};

/// The profile of this build: ROUTERDB_PROFILE names one of the above.
inline constexpr BuildProfile build_profile = ROUTERDB_PROFILE;

}  // namespace routerdb
