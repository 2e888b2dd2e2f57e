// The checks of the doctor. None of them changes anything.
#pragma once

#include "database.h"
#include "report.h"

namespace ctl {

/// What checks work with. Each runs in a process of its own, in memory that all of them share.
struct Examination {
    unsigned seconds;  // that a check may take
    bool is_exact;     // the profile of the library
    bool is_readable;  // the main database; the first check finds out
    Report report;     // of the check under way
};

struct Check {
    char name[16];
    void (*look)(Examination &examination);
};

// In checks_databases.cpp
void look_at_main_database(Examination &examination);
void look_at_content(Examination &examination);
void look_at_catalogue(Examination &examination);
void look_at_factory(Examination &examination);
void look_at_backup(Examination &examination);
// In checks_places.cpp and checks_access_point_tables.cpp
void look_at_rule_tables(Examination &examination);
void look_at_application_tables(Examination &examination);
void look_at_access_point_tables(Examination &examination);
// In checks_rows.cpp
void look_at_capacities(Examination &examination);
void look_at_access_points(Examination &examination);
void look_at_groups(Examination &examination);
void look_at_bindings(Examination &examination);
// In checks_values.cpp
void look_for_apostrophes(Examination &examination);
void look_for_json_breakers(Examination &examination);
void look_for_broken_characters(Examination &examination);
// In checks_space.cpp
void look_at_space(Examination &examination);
// In checks_lock.cpp
void look_at_lock_file(Examination &examination);
void look_at_lock(Examination &examination);
// In checks_service.cpp
void look_at_service(Examination &examination);
// In checks_system.cpp
void look_at_library(Examination &examination);
void look_at_programs(Examination &examination);
void look_at_converter(Examination &examination);

/// Opens the main database for a check.
/// @return false after the check has said why there is nothing to look at
bool open_main_database(Examination &examination, Database &database);

/// Whether the database has a table.
bool has_table(const Database &database, const char *name);

/// Calls visit(query) for each row, and says so when the query fails.
/// @return the number of rows
template <typename Visit>
int each_row(Examination &examination, Query &query, Visit visit) {
    int rows = 0;
    for (; query.next(); ++rows) {
        visit(query);
    }
    if (query.status() != Status::done) {
        examination.report.warn("look at what is said of tables and content", "rows cannot be read: %s", query.error());
    }
    return rows;
}

}  // namespace ctl
